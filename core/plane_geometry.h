#pragma once

#include "core/drawing_surface.h"

#include <array>
#include <cstdint>

namespace tarnel {

/// The value of pi of all plane work on charts and instruments.
constexpr double planePi = 3.141592654;

/// A chart position in twips, x to the right, y downwards.
struct ChartPoint {
    std::int16_t x = 0;
    std::int16_t y = 0;
    bool operator==(const ChartPoint&) const = default;
};

/// A bearing in degrees, clockwise from north, 0 up to 360, and a length.
struct Polar {
    double course = 0;
    double distance = 0;
};

/// Bearing and length of the offset (`dx`, `dy`), y upwards, in units of `twipsPerUnit` twips. A
/// zero offset gives 0 and 0.
[[nodiscard]] Polar polarOf(double dx, double dy, double twipsPerUnit);

/// Bearing and distance from one point to another, y upwards: a caller with chart positions negates
/// both y values first. Throws the overflow error when a difference leaves 16 bits.
[[nodiscard]] Polar MapToPolar(double twipsPerUnit, ChartPoint from, ChartPoint to);

/// The offset on the chart (y downwards) of `distance` units on `course` degrees, rounded to whole
/// twips, ties to even. Not narrowed to 16 bits.
[[nodiscard]] Point chartOffset(double course, double distance, double twipsPerUnit);

/// `point` turned by `angle` degrees about `centre`: clockwise where y points down.
[[nodiscard]] Point RotatePoint(double angle, Point centre, Point point);

/// Lays a length off along a bearing: with `point` straight above or below `centre` (same x) at a
/// length dy, the result is off by (dy sin a, dy cos a). Both sums have a plus sign: no rotation.
[[nodiscard]] Point RotateVector(double angle, Point centre, Point point);

/// The outline of the miniature airplane in twips about its own position, y downwards.
struct AirplaneOutline {
    Point nose{0, -100};
    Point tail{0, 186};
    Point leftWing{-214, 0};
    Point rightWing{214, 0};
    Point leftTailplane{-71, 171};
    Point rightTailplane{71, 171};
};

/// The outline turned by `angle` degrees about (0, 0).
[[nodiscard]] AirplaneOutline RotateAirplaneSymbol(double angle);

} // namespace tarnel
