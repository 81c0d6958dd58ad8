#pragma once

#include "authoring/local_text.h"
#include "authoring/manoeuvres.h"
#include "core/aircraft.h"

#include <vector>

namespace tarnel {

// What is told of a holding before its fix.

/// Which sector a heading lies in, and how far that reaches.
[[nodiscard]] LocalText sectorTold(const Holding& holding, double heading);

/// What a wind does on an inbound course, one thought each: its components, the correction angle
/// and heading, the seconds outbound. `tas` in knots.
[[nodiscard]] std::vector<LocalText> windTold(const Wind& wind, double inbound, double tas);

} // namespace tarnel
