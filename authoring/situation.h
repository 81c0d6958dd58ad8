#pragma once

#include "authoring/authored_chart.h"
#include "authoring/local_text.h"
#include "authoring/pilot.h"
#include "core/aircraft.h"
#include "core/station_geometry.h"

#include <array>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tarnel {

inline constexpr double vorFullScale = 10; ///< degrees of deviation at full needle travel

/// A situation as a teacher writes it. What an exercise does not ask for keeps its value here.
struct Situation {
    int line = 0;                               ///< of the source
    std::shared_ptr<const AuthoredChart> chart; ///< null for that of its course
    Slot station = Slot::vor1;
    FromStation at;     ///< of `station`
    double heading = 0; ///< degrees true
    std::int16_t tas = 120;
    Wind wind;
    double course = 0;  ///< set on the dials, degrees
    double flown = 75;  ///< seconds straight on
    double inbound = 0; ///< course of a holding
    Turn turns = Turn::right;
    double required = 0; ///< the bearing to be intercepted
    double cut = 30;     ///< the angle of an intercept
    double arc = 0;      ///< NM
    bool clockwise = true;
    double final = 0; ///< the course that leaves an arc
    Slot other = Slot::vor2;
    bool asksHeading = true;
    std::map<std::string, std::string> answers; ///< that the teacher expects, by the column's name
};

/// A situation and its solution as flown.
struct FlownSituation {
    const Situation& situation;
    const AuthoredChart& chart;
    std::vector<FlightRow> rows; ///< one a tick
    std::vector<SaidComment> said;
    std::string session; ///< the bytes of the flight, with German comments

    /// The tick of the first sample, a second after the start: there the question stands.
    static constexpr std::size_t askedTick = 3;
    [[nodiscard]] const FlightRow& asked() const { return rows.at(askedTick); }
    [[nodiscard]] FromStation from(Slot station, const FlightRow& row) const {
        return fromStation(chart.position(station), {row.latitude, row.longitude});
    }
};

/// The place a second's flight before `place`.
[[nodiscard]] GeoPosition secondBefore(const GeoPosition& place, const Situation& situation);

} // namespace tarnel
