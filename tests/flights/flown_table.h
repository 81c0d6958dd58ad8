#pragma once

#include "flights/flight.h"
#include "flights/flight_csv.h"
#include "flights/plan_reader.h"
#include "strings/string_table.h"

#include <gtest/gtest.h>

#include <map>
#include <sstream>
#include <string>
#include <vector>

namespace tarnel {

inline ScriptedFlight flightOf(const FlightPlan& plan) {
    return {plan, englishTable(), TARNEL_DATA_FOLDER};
}

/// Flies to the plan's end. The whole table as text.
inline std::string tableOf(ScriptedFlight& flight) {
    std::string table = flightCsvHeader();
    flight.fly(flight.plan().seconds, [&] { table += flightCsvLine(presentRow(flight)); });
    return table;
}

inline std::vector<std::string> cells(const std::string& line) {
    std::vector<std::string> found(1);
    for (const char c : line) {
        if (c == ',')
            found.emplace_back();
        else
            found.back() += c;
    }
    return found;
}

/// One row of a table, by the names of its columns.
class FlownRow {
  public:
    explicit FlownRow(std::map<std::string, std::string> from) : columns(std::move(from)) {}
    [[nodiscard]] const std::string& text(const std::string& column) const {
        return columns.at(column);
    }
    [[nodiscard]] double number(const std::string& column) const { return std::stod(text(column)); }
    [[nodiscard]] GeoPosition position() const { return {number("latitude"), number("longitude")}; }

  private:
    std::map<std::string, std::string> columns;
};

inline std::vector<FlownRow> rowsOf(const std::string& table) {
    std::istringstream lines(table);
    std::string line;
    std::getline(lines, line);
    const std::vector<std::string> names = cells(line);
    std::vector<FlownRow> rows;
    while (std::getline(lines, line)) {
        const std::vector<std::string> values = cells(line);
        EXPECT_EQ(values.size(), names.size()) << line;
        std::map<std::string, std::string> columns;
        for (std::size_t i = 0; i < names.size() && i < values.size(); ++i)
            columns[names[i]] = values[i];
        rows.emplace_back(std::move(columns));
    }
    return rows;
}

inline std::vector<FlownRow> flownRows(const FlightPlan& plan) {
    ScriptedFlight flight = flightOf(plan);
    return rowsOf(tableOf(flight));
}

} // namespace tarnel
