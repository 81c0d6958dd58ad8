#pragma once

#include "core/aircraft.h"

#include <vector>

namespace tarnel {

/// NM to the east and north of somewhere.
struct PlaneOffset {
    double east = 0;
    double north = 0;
};

/// The way of an aircraft of `tas` knots that the autopilot turns from `heading` by `change`
/// degrees, right is positive: one offset a tick from where the turn is asked for. The autopilot
/// begins a tick late, turns 3 degrees a second and takes the last five degrees at one.
[[nodiscard]] std::vector<PlaneOffset> turnInWind(const Wind& wind, double tas, double heading,
                                                  double change);

} // namespace tarnel
