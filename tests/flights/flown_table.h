#pragma once

#include "flights/flight.h"
#include "flights/flight_csv.h"
#include "flights/plan_reader.h"
#include "strings/string_table.h"

#include <vector>

namespace tarnel {

inline ScriptedFlight flightOf(const FlightPlan& plan) {
    return {plan, englishTable(), TARNEL_DATA_FOLDER};
}

/// Flies to the plan's end. A row a tick.
inline std::vector<FlightRow> rowsOf(ScriptedFlight& flight) {
    std::vector<FlightRow> rows;
    flight.fly(flight.plan().seconds, [&] { rows.push_back(presentRow(flight)); });
    return rows;
}

inline std::vector<FlightRow> flownRows(const FlightPlan& plan) {
    ScriptedFlight flight = flightOf(plan);
    return rowsOf(flight);
}

inline GeoPosition positionOf(const FlightRow& row) {
    return {row.latitude, row.longitude};
}

} // namespace tarnel
