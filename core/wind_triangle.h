#pragma once

#include "core/aircraft.h"

namespace tarnel {

/// What a wind does to a flight along a course: WCA = asin(W sin a / TAS), GS = TAS cos WCA - W cos
/// a, with the angle a from the course to where the wind comes from.
struct WindTriangle {
    double head = 0;        ///< knots against the course; a tail wind is negative
    double fromRight = 0;   ///< knots; from the left is negative
    double correction = 0;  ///< degrees to the right; NaN if the aircraft can't hold the course
    double groundSpeed = 0; ///< knots along the course
};

/// `course` in degrees, `tas` in knots.
[[nodiscard]] WindTriangle windTriangle(const Wind& wind, double course, double tas);

/// Seconds outbound, whole, that come as far over the ground as a minute inbound.
[[nodiscard]] double outboundSeconds(const WindTriangle& inbound);

} // namespace tarnel
