#include "shell/answers_csv.h"

#include "core/number_text.h"
#include "shell/progress.h"

#include <initializer_list>
#include <utility>

namespace tarnel {

namespace {

std::string quoted(std::string_view value) {
    if (value.find_first_of(",\"\r\n") == std::string_view::npos)
        return std::string(value);
    std::string result = "\"";
    for (const char c : value)
        result += c == '"' ? std::string("\"\"") : std::string(1, c);
    return result + '"';
}

std::string line(std::initializer_list<std::string_view> values) {
    std::string result;
    const char* comma = "";
    for (const std::string_view value : values)
        result += std::exchange(comma, ",") + quoted(value);
    return result + "\r\n";
}

} // namespace

std::string answersCsv(TrainingLog& log, const StringTable& texts, OutsideWorld& clock) {
    constexpr std::int64_t second = 1000;
    std::string table =
        line({texts[Text::csvTime], texts[Text::csvCourse], texts[Text::csvExercise],
              texts[Text::csvQuestion], texts[Text::csvTrains], texts[Text::csvGiven],
              texts[Text::csvAnswer], texts[Text::csvRight], texts[Text::csvSeconds]});
    log.eachRow([&](const AnsweredRow& row) {
        table += line({clock.localTime(row.when / second, "yyyy-MM-dd HH:mm"), row.courseName,
                       exerciseName(row.exercise, texts),
                       numberText(row.question) + "/" + numberText(std::int64_t{row.row + 1}),
                       spotName(row.spot, texts), row.given, row.answer, row.right ? "1" : "0",
                       numberText(row.milliseconds / second)});
    });
    return table;
}

} // namespace tarnel
