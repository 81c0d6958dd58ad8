#include "core/run_time_error.h"
#include "core/sailing.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cmath>

namespace tarnel {
namespace {

TEST(SplitAngle, KeepsTheSignOnTheDegrees) {
    EXPECT_EQ(toSplit(49.25), (SplitAngle{49, 15}));
    EXPECT_EQ(toSplit(-33.5), (SplitAngle{-33, 30}));
    EXPECT_EQ(toSplit(-0.5), (SplitAngle{0, 30})); // the sign is lost
    EXPECT_DOUBLE_EQ(toPlain(SplitAngle{0, 30}), 0.5);
    EXPECT_DOUBLE_EQ(toPlain(SplitAngle{-1, 30}), -1.5);
    EXPECT_DOUBLE_EQ(toPlain(toSplit(-122.375)), -122.375);
}

TEST(SplitAngle, DegreesBeyond16BitsOverflow) {
    EXPECT_EQ(toSplit(32767.5).degrees, 32767);
    EXPECT_THROW((void)toSplit(32768.0), RunTimeError);
}

struct Leg {
    GeoPosition from;
    double course;
    double distance;
    GeoPosition to;
};

// Rhumb lines on the WGS 84 ellipsoid, worked out with 30 digits from the isometric latitude and a
// numeric integral of the meridian.
constexpr Leg legs[] = {
    {{49, 11}, 0, 80, {50.332103203, 11.0}},
    {{49, 11}, 33, 80, {50.1172165716, 12.1153908732}},
    {{49, 11}, 90, 60, {49.0, 12.5186179662}},
    {{49, 11}, 270, 80, {49.0, 8.97517604513}},
    {{49, 11}, 180, 75, {47.7508725004, 11.0}},
    {{48.5, 11.5}, 315, 12.5, {48.6472059871, 11.2781735927}},
    {{60.25, 5.2}, 122, 80, {59.5452835629, 7.44490274869}},
    {{69.75, 18.9}, 281, 80, {70.0034075291, 15.1136937236}},
    {{-33.9, 151.2}, 205, 80, {-35.110463121, 150.518147662}},
    {{5.5, -3.25}, 75, 40, {5.67338110448, -2.60415585463}},
    {{70, 25}, 225, 80, {69.0608758896, 22.3163109712}},
    {{-54.8, -68.3}, 350, 0.5, {-54.791807996, -68.3025000284}},
};

TEST(Sailing, AgreesWithTheEllipsoid) {
    for (const Leg& leg : legs) {
        const CourseDistance found = CourseAndDistance(leg.from, leg.to);
        // The northern half of the compass is -90 to 90.
        const double course = leg.course > 270 ? leg.course - 360 : leg.course;
        EXPECT_NEAR(found.distance, leg.distance, 0.0001) << leg.course;
        EXPECT_NEAR(found.course, course, 0.0001) << leg.course;
    }
}

TEST(DeadReckoning, AgreesWithTheEllipsoidWithinTwoMetres) {
    constexpr double twoMetres = 2 / 1852.0 / 60;
    for (const Leg& leg : legs) {
        double course = leg.course;
        const GeoPosition end = DeadReckon(toSplit(leg.from), leg.distance, course).plain;
        EXPECT_NEAR(end.latitude, leg.to.latitude, twoMetres) << leg.course;
        const double parallel = std::cos(leg.to.latitude * 3.14159265358979 / 180);
        EXPECT_NEAR(end.longitude * parallel, leg.to.longitude * parallel, twoMetres) << leg.course;
    }
}

TEST(DeadReckoning, ChangesCoursesThatItCannotUse) {
    const std::pair<double, double> cases[] = {{90, 90.000001},    {89.99999995, 90.000001},
                                               {89.9999, 89.9999}, {270, 270.000001},
                                               {450, 90.000001},   {360, 360},
                                               {540, 180},         {-45, -45}};
    for (const auto& [given, used] : cases) {
        double course = given;
        (void)DeadReckon({{49, 0}, {11, 0}}, 1, course);
        EXPECT_EQ(course, used) << given;
    }
}

TEST(Sailing, TheSamePointIsNoDistanceAway) {
    const GeoPosition place{49.1, 11.2};
    EXPECT_NEAR(CourseAndDistance(place, place).distance, 0, 0.00001);
}

/// A number with `steps` equal steps between `low` and `high`.
double arbitraryBetween(double low, double high) {
    constexpr int steps = 1000000;
    return low + (high - low) * (*rc::gen::inRange(0, steps + 1)) / steps;
}

/// Off the two lines where the sign of a split value gets lost.
GeoPosition arbitraryPosition() {
    const double northern = *rc::gen::element(-1, 1);
    const double eastern = *rc::gen::element(-1, 1);
    return {northern * arbitraryBetween(2.5, 70), eastern * arbitraryBetween(5.5, 170)};
}

RC_GTEST_PROP(DeadReckoning, ThereAndBackIsWithinTwoMetres, ()) {
    const GeoPosition start = arbitraryPosition();
    const double distance = arbitraryBetween(0.01, 80);
    double out = arbitraryBetween(0, 359.9999);
    double back = out + 180;
    const DeadReckoned turn = DeadReckon(toSplit(start), distance, out);
    const DeadReckoned end = DeadReckon(turn.split, distance, back);
    const double north = (end.plain.latitude - start.latitude) * 60 * 1852;
    const double east = (end.plain.longitude - start.longitude) * 60 * 1852 *
                        std::cos(start.latitude * 3.14159265358979 / 180);
    RC_ASSERT(std::hypot(north, east) < 2);
}

RC_GTEST_PROP(DeadReckoning, IsTheInverseOfSailing, ()) {
    const GeoPosition start = arbitraryPosition();
    const double distance = arbitraryBetween(0.1, 80);
    double course = arbitraryBetween(0, 359.9999);
    const CourseDistance found =
        CourseAndDistance(start, DeadReckon(toSplit(start), distance, course).plain);
    // Due east and west the distance hangs on the last digits of the latitude.
    RC_ASSERT(std::abs(found.distance - distance) < 0.003);
    const double turned = std::remainder(found.course - course, 360);
    // One metre to the side, as an angle.
    RC_ASSERT(std::abs(turned) < 57.3 / 1852 / distance);
}

} // namespace
} // namespace tarnel
