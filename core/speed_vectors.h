#pragma once

#include "core/aircraft.h"
#include "core/plane_geometry.h"

#include <cstdint>

namespace tarnel {

/// The wind triangle at a fixed size whatever the chart's scale, and what is read off it.
struct SpeedVectors {
    Point airplane;
    Point airTip;
    Point windTip;
    /// Knots over the ground.
    std::int16_t groundSpeed = 0;
    /// Degrees, 1 to 360 (a flight north reads 360); relative to the heading in the heading-up
    /// view.
    std::int16_t groundTrack = 0;
};

/// Lays the triangle out from the airplane's place: the air line along `heading` (0 in the
/// heading-up view), the wind line from its tip along `windCourse`. Throws the overflow error when
/// a line leaves 16 bits.
[[nodiscard]] SpeedVectors layOutSpeedVectors(Point airplane, double heading, std::int16_t tas,
                                              double windCourse, std::int16_t windSpeed,
                                              std::int16_t mapScaleTwips);

} // namespace tarnel
