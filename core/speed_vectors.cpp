#include "core/speed_vectors.h"

#include "core/rounding.h"

namespace tarnel {

namespace {

/// The scale at which the triangle's lines are read. Their length then times 43.24 / 3 is knots.
constexpr double readingScale = 250;

Point plus(Point a, Point b) {
    return {a.x + b.x, a.y + b.y};
}

} // namespace

SpeedVectors layOutSpeedVectors(Point airplane, double heading, std::int16_t tas, double windCourse,
                                std::int16_t windSpeed, std::int16_t mapScaleTwips) {
    // Not narrowed to 16 bits: on the smallest charts it is long.
    const double legTwips = roundToEven((62500.0 / mapScaleTwips) * 3);
    const double perKnot = mapScaleTwips * (1 / (3600 / simTimeStep)) * simTimeFactor;

    SpeedVectors vectors;
    vectors.airplane = airplane;
    vectors.airTip = plus(airplane, chartOffset(heading, perKnot * tas, legTwips));
    vectors.windTip = plus(vectors.airTip, chartOffset(windCourse, perKnot * windSpeed, legTwips));

    // From the tip back to the airplane, with y downwards: the bearing then runs against the track.
    const Polar ground = polarOf(toInt16(airplane.x - vectors.windTip.x),
                                 toInt16(airplane.y - vectors.windTip.y), readingScale);
    vectors.groundTrack = toInt16(360 - roundToEven(ground.course));
    vectors.groundSpeed = toInt16(ground.distance * 43.24 / 3);
    return vectors;
}

} // namespace tarnel
