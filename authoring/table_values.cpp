#include "authoring/table_values.h"

#include "core/number_text.h"
#include "core/run_time_error.h"
#include "flights/flight_plan.h"
#include "flights/plan_error.h"
#include "flights/plan_reader.h"
#include "persistence/text_encoding.h"
#include "strings/cause_text.h"
#include "strings/string_table.h"

#include <algorithm>

namespace tarnel {

std::optional<std::string> readWord(PlanTable& table, std::string_view key,
                                    std::initializer_list<const char*> words) {
    std::string expected;
    for (const char* word : words)
        expected += std::string(expected.empty() ? "" : ", ") + '"' + word + '"';
    return table.text(
        key,
        [&](const std::string& text) {
            return std::find(words.begin(), words.end(), text) != words.end();
        },
        expected);
}

LocalText readBothLanguages(PlanTable& table, std::string_view germanKey,
                            std::string_view englishKey) {
    const auto oneLine = [](const std::string& text) {
        return !text.empty() && text.find_first_of("\r\n") == std::string::npos &&
               characterCount(text) <= plan_limits::commentLength;
    };
    const std::string expected = "one line of text of at most " +
                                 numberText(std::int64_t{plan_limits::commentLength}) +
                                 " characters";
    const auto german = table.text(germanKey, oneLine, expected);
    const auto english = table.text(englishKey, oneLine, expected);
    table.needBothOrNone(germanKey, englishKey);
    return {german.value_or(""), english.value_or("")};
}

std::optional<Wind> readWind(PlanTable& table) {
    const auto wind = table.text(
        "wind", [](const std::string& text) { return windFrom(text).has_value(); },
        R"(direction and speed, such as "270/15")");
    return wind ? windFrom(*wind) : std::nullopt;
}

bool readSense(PlanTable& table) {
    table.need("sense");
    return readWord(table, "sense", {"clockwise", "counterclockwise"}) == "clockwise";
}

bool isFileStem(const std::string& text) {
    constexpr std::size_t longest = 200; // bytes; file systems take 255, with a prefix and an end
    const auto fits = [](unsigned char c) { return c >= ' ' && c != '/' && c != '\\'; };
    return !text.empty() && text.size() <= longest && text.front() != '.' &&
           std::all_of(text.begin(), text.end(), fits);
}

AuthoredChart readChartOf(PlanTable& root, const std::string& file, const ChartShelf& charts) {
    root.need("chart");
    const auto name = root.text(
        "chart",
        [&](const std::string& text) { return isFileStem(text) && charts.find(text, file); },
        "the name of a chart, a .map file beside this one or among the trainer's");
    try {
        return readAuthoredChart(*charts.find(*name, file));
    } catch (const RunTimeError& error) {
        throw PlanError(file, root.lineOf("chart"),
                        "a chart that can be read: " +
                            std::string(causeText(englishTable(), error.cause())));
    } catch (const std::runtime_error& error) {
        throw PlanError(file, root.lineOf("chart"), error.what());
    }
}

} // namespace tarnel
