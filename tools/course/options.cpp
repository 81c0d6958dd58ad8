#include "tools/course/options.h"

#include "tools/output/tool_run.h"

namespace tarnel {

namespace {

CourseCommand commandOf(const std::string& word) {
    if (word == "build")
        return CourseCommand::build;
    if (word == "check")
        return CourseCommand::check;
    if (word == "print")
        return CourseCommand::print;
    throw UsageError("no command: " + word);
}

void takeOption(CourseOptions& options, const std::string& name, const std::string& value) {
    if (name == "--out" && options.command != CourseCommand::check)
        options.out = value;
    else if (name == "--language" && options.command == CourseCommand::print &&
             (value == "de" || value == "en"))
        options.german = value == "de";
    else
        throw UsageError("not with this command: " + name + " " + value);
}

} // namespace

CourseOptions readCourseOptions(const std::vector<std::string>& arguments) {
    CourseOptions options;
    if (arguments.empty())
        throw UsageError("a command is missing");
    if (arguments.front() == "--help")
        return options;
    options.command = commandOf(arguments.front());
    for (std::size_t i = 1; i < arguments.size(); ++i) {
        if (!arguments[i].starts_with("--"))
            options.sources.push_back(arguments[i]);
        else if (i + 1 == arguments.size())
            throw UsageError(arguments[i] + " needs a value");
        else
            takeOption(options, arguments[i], arguments[i + 1]), ++i;
    }
    if (options.sources.empty())
        throw UsageError("a source is missing");
    if (options.command == CourseCommand::print && options.sources.size() > 1)
        throw UsageError("one source a print");
    return options;
}

} // namespace tarnel
