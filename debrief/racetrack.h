#pragma once

#include "core/aircraft.h"
#include "core/station_geometry.h"
#include "debrief/task.h"

#include <optional>
#include <vector>

namespace tarnel {

/// A holding as it lies in a wind so that its inbound leg is flown along the course and lasts its
/// minutes.
struct Racetrack {
    double correctionIn = 0;         ///< degrees of heading to the right of the inbound course
    double correctionOut = 0;        ///< of the outbound one
    double outboundSeconds = 0;      ///< from abeam the fix or wings level, whichever is later
    std::vector<FromStation> points; ///< as seen from the fix, closed
};

/// Nothing where the wind leaves no such holding for an aircraft of `tas` knots.
[[nodiscard]] std::optional<Racetrack> racetrackOf(const HoldTask& task, const Wind& wind,
                                                   double tas);

} // namespace tarnel
