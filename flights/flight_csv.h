#pragma once

#include "instruments/user_control_1.h"

#include <cstdint>
#include <string>

namespace tarnel {

class ScriptedFlight;

/// What one of the two instruments shows.
struct InstrumentRow {
    std::int16_t type = 0; ///< a value of `Display`
    std::int32_t angle = 0;
    double needle = 0;
    double needle2 = 0;
    std::int16_t deviation = 0;
    FlagState flag = FlagState::none;
};

struct StationRow {
    double radial = 0;
    double dme = 0;
    std::int16_t dmeGroundSpeed = 0;
};

/// The state of a flight after one tick, in the order of the table's columns.
struct FlightRow {
    int tick = 0;
    double seconds = 0;
    double latitude = 0;
    double longitude = 0;
    double heading = 0;
    std::int16_t turnRate = 0;
    std::int16_t tas = 0;
    double windDirection = 0;
    std::int16_t windSpeed = 0;
    std::int16_t track = 0;
    std::int16_t groundSpeed = 0;
    StationRow vor1;
    StationRow vor2;
    double ndb1Radial = 0;
    double ndb2Radial = 0;
    StationRow localizer;
    std::int16_t sample = 0;
    InstrumentRow inst2;
    InstrumentRow inst3;
};

[[nodiscard]] FlightRow presentRow(ScriptedFlight& flight);

/// The names of the columns, with a line end.
[[nodiscard]] std::string flightCsvHeader();
/// One line of the table, with its end. Numbers are in the shortest form that reads back to the
/// same bits.
[[nodiscard]] std::string flightCsvLine(const FlightRow& row);

} // namespace tarnel
