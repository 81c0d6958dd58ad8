#include "core/angle.h"
#include "core/rounding.h"
#include "core/run_time_error.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cmath>
#include <limits>

namespace tarnel {
namespace {

TEST(Rounding, TiesGoToTheEvenNumber) {
    const std::tuple<double, int, double> cases[] = {
        {0.5, 0, 0},           {1.5, 0, 2},        {2.5, 0, 2},        {-2.5, 0, -2},
        {-3.5, 0, -4},         {2.51, 0, 3},       {0.25, 1, 0.2},     {0.75, 1, 0.8},
        {1.6447, 1, 1.6},      {12.125, 2, 12.12}, {12.375, 2, 12.38}, {-0.125, 2, -0.12},
        {500.0 / 333, 1, 1.5},
    };
    for (const auto& [value, digits, expected] : cases)
        EXPECT_DOUBLE_EQ(roundTo(value, digits), expected) << value << " to " << digits;
}

TEST(Rounding, IntegersEndWhereTheirTypeEnds) {
    EXPECT_EQ(toInt16(32767.49), 32767);
    EXPECT_EQ(toInt16(-32768.5), -32768); // a tie
    EXPECT_EQ(toInt16(2.5), 2);
    EXPECT_EQ(toInt32(2147483647.4), 2147483647);
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    constexpr double infinite = std::numeric_limits<double>::infinity();
    for (const double value : {32767.5, -32768.51, 1e300, nan, -infinite}) {
        try {
            (void)toInt16(value);
            ADD_FAILURE() << value << " was taken";
        } catch (const RunTimeError& error) {
            EXPECT_EQ(error.number(), 6);
        }
    }
    EXPECT_THROW((void)toInt32(2147483647.5), RunTimeError);
    EXPECT_THROW((void)toInt32(nan), RunTimeError);
}

TEST(IntoCircle, KeepsBothEndsAndTurnsTheRest) {
    const std::pair<double, double> cases[] = {
        {0, 0},    {360, 360},    {360.5, 0.5},      {720, 360},
        {-360, 0}, {-0.5, 359.5}, {-720.25, 359.75}, {1085, 5}};
    for (const auto& [angle, expected] : cases)
        EXPECT_DOUBLE_EQ(intoCircle(angle), expected) << angle;
    EXPECT_TRUE(std::isinf(intoCircle(std::numeric_limits<double>::infinity())));
}

RC_GTEST_PROP(IntoCircle, IsTheSameDirection, ()) {
    const double angle = *rc::gen::inRange(-1000000, 1000000) / 64.0;
    const double turned = intoCircle(angle);
    RC_ASSERT(turned >= 0 && turned <= 360);
    RC_ASSERT(std::fmod(turned - angle, 360) == 0);
}

} // namespace
} // namespace tarnel
