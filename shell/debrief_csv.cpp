#include "shell/debrief_csv.h"

#include "core/number_text.h"
#include "shell/finding_text.h"

#include <array>
#include <charconv>
#include <utility>
#include <vector>

namespace tarnel {

namespace {

constexpr int placeDecimals = 6;
constexpr int valueDecimals = 3;

std::string fixed(double value, int decimals) {
    std::array<char, 64> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), value,
                                   std::chars_format::fixed, decimals);
    return {text.data(), end.ptr};
}

struct Column {
    std::string name;
    const std::vector<std::optional<float>>* values = nullptr;
};

void addColumns(std::vector<Column>& columns, const Attempt& attempt, bool named,
                const StringTable& texts) {
    for (const Series& series : attempt.debrief.series) {
        std::string name;
        if (named)
            name.append("#").append(numberText(std::int64_t{attempt.number})).append(" ");
        name.append(texts[nameOf(series.kind)]);
        if (const std::string unit = unitText(series.unit, texts); !unit.empty())
            name.append(" (").append(unit).append(")");
        columns.push_back({std::move(name), &series.values});
    }
}

} // namespace

std::string debriefCsv(const DebriefDesk& desk, const StringTable& texts) {
    const Attempt* attempt = desk.attempt();
    if (!attempt)
        return {};
    std::vector<Column> columns;
    addColumns(columns, *attempt, !desk.compared().empty(), texts);
    for (const Attempt& earlier : desk.compared())
        addColumns(columns, earlier, true, texts);
    std::string table = std::string(texts[Text::debriefSample]) + ";" +
                        std::string(texts[Text::debriefTime]) + ";N;E";
    for (const Column& column : columns)
        table += ";" + column.name;
    table += "\n";
    for (std::size_t i = 0; i < attempt->samples.size(); ++i) {
        const Sample& sample = attempt->samples[i];
        table += numberText(static_cast<std::int64_t>(i + 1)) + ";" +
                 fixed(static_cast<double>(i) * secondsPerSample, 1) + ";" +
                 fixed(sample.traceLat, placeDecimals) + ";" +
                 fixed(sample.traceLon, placeDecimals);
        for (const Column& column : columns) {
            table += ";";
            if (i < column.values->size() && (*column.values)[i])
                table += fixed(*(*column.values)[i], valueDecimals);
        }
        table += "\n";
    }
    return table;
}

} // namespace tarnel
