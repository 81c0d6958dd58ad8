#include "tools/handbook/options.h"

#include "tools/output/tool_run.h"

namespace tarnel {

namespace {

HandbookCommand commandOf(const std::string& word) {
    if (word == "sections")
        return HandbookCommand::sections;
    if (word == "figures")
        return HandbookCommand::figures;
    if (word == "plates")
        return HandbookCommand::plates;
    throw UsageError("no command: " + word);
}

void takeOption(HandbookOptions& options, const std::string& name, const std::string& value) {
    if (name == "--out")
        options.out = value;
    else if (name == "--language" && (value == "de" || value == "en"))
        options.german = value == "de";
    else
        throw UsageError("no option: " + name + " " + value);
}

} // namespace

HandbookOptions readHandbookOptions(const std::vector<std::string>& words) {
    HandbookOptions options;
    if (words.empty())
        throw UsageError("a command is missing");
    if (words.front() == "--help")
        return options;
    options.command = commandOf(words.front());
    for (std::size_t i = 1; i < words.size(); ++i) {
        if (!words[i].starts_with("--"))
            options.sources.push_back(words[i]);
        else if (i + 1 == words.size())
            throw UsageError(words[i] + " needs a value");
        else
            takeOption(options, words[i], words[i + 1]), ++i;
    }
    const bool paints = options.command != HandbookCommand::sections;
    if (paints && (options.sources.empty() || options.out.empty()))
        throw UsageError("this command needs sources and --out");
    return options;
}

} // namespace tarnel
