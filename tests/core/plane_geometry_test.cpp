#include "core/chart_plot.h"
#include "core/plane_geometry.h"
#include "core/run_time_error.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cmath>
#include <utility>

namespace tarnel {
namespace {

TEST(MapToPolar, KnowsItsQuadrants) {
    // From (100, 100) with y upwards, 250 twips a unit.
    const std::tuple<ChartPoint, double, double> cases[] = {
        {{100, 100}, 0, 0},          {{100, 350}, 0, 1},         {{350, 350}, 45, 1.4142136},
        {{350, 100}, 90, 1},         {{400, -300}, 143.1301, 2}, {{100, -150}, 180, 1},
        {{-200, -300}, 216.8699, 2}, {{-150, 100}, 270, 1},      {{-200, 500}, 323.1301, 2},
    };
    for (const auto& [to, course, distance] : cases) {
        const Polar polar = MapToPolar(250, {100, 100}, to);
        EXPECT_NEAR(polar.course, course, 0.0001) << to.x << ' ' << to.y;
        EXPECT_NEAR(polar.distance, distance, 0.0001) << to.x << ' ' << to.y;
    }
    EXPECT_THROW((void)MapToPolar(250, {-20000, 0}, {20000, 0}), RunTimeError);
}

TEST(Rotation, TurnsClockwiseOnTheChart) {
    const Point turned = RotatePoint(90, {10, 20}, {10, -80}); // from above to the right
    EXPECT_NEAR(turned.x, 110, 0.0001);
    EXPECT_NEAR(turned.y, 20, 0.0001);
    const AirplaneOutline east = RotateAirplaneSymbol(90);
    EXPECT_NEAR(east.nose.x, 100, 0.0001);
    EXPECT_NEAR(east.tail.x, -186, 0.0001);
    EXPECT_NEAR(east.leftWing.y, -214, 0.0001);
    EXPECT_NEAR(east.rightTailplane.y, 71, 0.0001);
}

TEST(Rotation, VectorIsLaidOffAndNotTurned) {
    // Straight above the centre it lies along the bearing with its y turned up.
    const Point laid = RotateVector(30, {0, 0}, {0, 100});
    EXPECT_NEAR(laid.x, 50, 0.0001);
    EXPECT_NEAR(laid.y, 86.6025, 0.0001);
    EXPECT_NEAR(RotatePoint(30, {0, 0}, {0, 100}).x, -50, 0.0001);
    // With an x of its own both sums keep their plus sign.
    EXPECT_NEAR(RotateVector(90, {0, 0}, {100, 100}).x, 100, 0.0001);
    EXPECT_NEAR(RotateVector(90, {0, 0}, {100, 100}).y, 100, 0.0001);
    EXPECT_NEAR(RotatePoint(90, {0, 0}, {100, 100}).x, -100, 0.0001);
}

TEST(PolarToMap, RoundsTiesToEven) {
    Chartsubmodul1 plot;
    ChartPoint point;
    for (const auto& [distance, expected] : {std::pair{0.5, 0}, {1.5, 2}, {2.5, 2}, {3.5, 4}}) {
        plot.PolarToMap(0, distance, 1, {0, 0}, point);
        EXPECT_EQ(point.y, -expected) << distance;
        plot.PolarToMap(180, distance, 1, {0, 0}, point);
        EXPECT_EQ(point.y, expected) << distance;
    }
}

TEST(PolarToMap, OverflowKeepsTheLastOffset) {
    Chartsubmodul1 plot;
    ChartPoint point;
    plot.PolarToMap(90, 10, 100, {50, 60}, point);
    EXPECT_EQ(point, (ChartPoint{1050, 60}));
    plot.PolarToMap(90, 328, 100, {0, 0}, point); // 32800 twips
    EXPECT_EQ(point, (ChartPoint{1000, 0}));
    plot.PolarToMap(135, 400, 100, {0, 0}, point); // 28284 each way
    EXPECT_EQ(point, (ChartPoint{28284, 28284}));
    plot.PolarToMap(120, 400, 100, {0, 7}, point); // only x overflows
    EXPECT_EQ(point, (ChartPoint{28284, 20007}));
}

TEST(PolarToMap, SumThatOverflowsLeavesThePoint) {
    Chartsubmodul1 plot;
    ChartPoint point{1, 2};
    plot.PolarToMap(135, 400, 100, {10000, 0}, point);
    EXPECT_EQ(point, (ChartPoint{1, 28284}));
}

TEST(GeoToMap, QuantisesTheDistance) {
    Chartsubmodul1 plot;
    plot.mapScaleTwips = 1000;
    ChartPlace place;
    plot.GeoToMap({49 + 0.0134 / 60, 11}, place); // 0.0134 nautical miles north: 0.01
    EXPECT_EQ(place.point, (ChartPoint{3405, 3395}));
    plot.GeoToMap({49 - 0.0166 / 60, 11}, place);
    EXPECT_EQ(place.point, (ChartPoint{3405, 3425}));
}

TEST(GeoToMap, WidePlaceGoesOnWhereTheNarrowOneStays) {
    Chartsubmodul1 plot;
    plot.mapScaleTwips = 1000;
    ChartPlace place;
    plot.GeoToMap({49.1, 11}, place);
    const ChartPoint last = place.point;
    EXPECT_EQ(place.wide, (Point{static_cast<double>(last.x), static_cast<double>(last.y)}));
    plot.GeoToMap({50, 11}, place); // 60 miles north
    EXPECT_EQ(place.point, last);
    EXPECT_NEAR(place.wide.y, 3405 - 60049, 20);
}

RC_GTEST_PROP(MapToGeo, IsTheInverseOfGeoToMap, ()) {
    Chartsubmodul1 plot;
    plot.mapScaleTwips = *rc::gen::element<std::int16_t>(125, 250, 333, 1000);
    const auto coordinate = rc::gen::inRange<std::int16_t>(0, 6811);
    const ChartPoint point{*coordinate, *coordinate};
    ChartPlace place;
    plot.GeoToMap(plot.MapToGeo(point).plain, place);
    // Half a hundredth of a mile, and the rounding of both coordinates.
    const double tolerance = 0.005 * plot.mapScaleTwips + 1;
    RC_ASSERT(std::hypot(place.point.x - point.x, place.point.y - point.y) <= tolerance);
}

} // namespace
} // namespace tarnel
