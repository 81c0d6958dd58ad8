#include "tools/course/options.h"

namespace tarnel {

CourseOptions readCourseOptions(const std::vector<std::string>& arguments) {
    CourseOptions options;
    if (arguments.empty())
        throw UsageError("a command is missing");
    if (arguments.front() == "--help")
        return options;
    if (arguments.front() == "build")
        options.command = CourseCommand::build;
    else if (arguments.front() == "check")
        options.command = CourseCommand::check;
    else
        throw UsageError("no command: " + arguments.front());
    for (std::size_t i = 1; i < arguments.size(); ++i) {
        if (arguments[i] == "--out") {
            if (options.command != CourseCommand::build || ++i == arguments.size())
                throw UsageError("--out needs a folder, and 'build'");
            options.out = arguments[i];
        } else if (arguments[i].starts_with("--")) {
            throw UsageError("no option: " + arguments[i]);
        } else {
            options.sources.push_back(arguments[i]);
        }
    }
    if (options.sources.empty())
        throw UsageError("a source is missing");
    return options;
}

} // namespace tarnel
