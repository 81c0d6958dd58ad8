#include "tools/fly/options.h"

#include "core/number_text.h"
#include "flights/flight_plan.h"
#include "tools/output/output_file.h"
#include "tools/output/tool_run.h"
#include "tracks/track_writer.h"

namespace tarnel {

namespace {

double secondsFrom(const std::string& word) {
    const auto seconds = parseNumber(word);
    if (!seconds || !plan_limits::seconds.contains(*seconds))
        throw UsageError("--until takes seconds from " + numberText(plan_limits::seconds.lowest) +
                         " to " + numberText(plan_limits::seconds.highest) + ", not '" + word +
                         "'");
    return *seconds;
}

bool isGerman(const std::string& word) {
    if (word != "de" && word != "en")
        throw UsageError("--language takes de or en, not '" + word + "'");
    return word == "de";
}

const std::string& trackFrom(const std::string& word) {
    if (!formatOf(word))
        throw UsageError("--track takes a file that ends in .gpx, .kml or .csv, not '" + word +
                         "'");
    return word;
}

void takeOption(FlyOptions& options, const std::string& name, const std::string& value) {
    if (name == "--csv")
        options.csv = value;
    else if (name == "--picture")
        options.picture = value;
    else if (name == "--session")
        options.session = value;
    else if (name == "--track")
        options.tracks.push_back(trackFrom(value));
    else if (name == "--until")
        options.until = secondsFrom(value);
    else if (name == "--language")
        options.german = isGerman(value);
    else
        throw UsageError("unknown option " + name);
}

void check(const FlyOptions& options) {
    if (options.plan.empty())
        throw UsageError("a plan is missing");
    const auto toStandard = [](const auto& output) { return output == standardOutput ? 1 : 0; };
    if (toStandard(options.csv) + toStandard(options.picture) + toStandard(options.session) +
            (options.debrief ? 1 : 0) >
        1)
        throw UsageError("only one output can go to standard output");
}

} // namespace

FlyOptions readOptions(const std::vector<std::string>& words) {
    FlyOptions options;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::string& word = words[i];
        if (word == "--help" || word == "-h") {
            options.help = true;
            return options;
        }
        if (word == "--debrief") {
            options.debrief = true;
        } else if (word.starts_with("-")) {
            if (i + 1 == words.size())
                throw UsageError(word + " is unknown or lacks its value");
            takeOption(options, word, words[++i]);
        } else if (options.plan.empty()) {
            options.plan = word;
        } else {
            throw UsageError("only one plan can be flown, not also '" + word + "'");
        }
    }
    check(options);
    return options;
}

} // namespace tarnel
