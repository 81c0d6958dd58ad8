#include "instruments/instrument_layout.h"
#include "instruments/needle_logic.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cmath>

namespace tarnel {
namespace {

struct Case {
    double course;
    double radial;
    FlagState flag;
    double deviation;
};

TEST(NeedleLogic, vorFlagsAndDeviationInAllSectors) {
    constexpr double frozen = 7;
    const Case cases[] = {
        {360, 180, FlagState::to, 0},        {0, 190, FlagState::to, 10},
        {0, 350, FlagState::from, 10},       {90, 90, FlagState::from, 0},
        {0, 170, FlagState::to, -10},        {350, 5, FlagState::from, -15},
        {350, 340, FlagState::from, 10},     {10, 355, FlagState::from, 15},
        {300, 110, FlagState::to, -10},      {100, 290, FlagState::to, 10},
        {360, 0, FlagState::from, 0},        {270, 90, FlagState::to, 0},
        {0, 5.5, FlagState::from, -5.5},     {90, 0, FlagState::loc, frozen},
        {90, 180, FlagState::loc, frozen},   {0, 92, FlagState::loc, frozen},
        {0, 92.01, FlagState::to, -87.99},   {0, 268, FlagState::loc, frozen},
        {0, 267.99, FlagState::to, 87.99},   {0, 272, FlagState::loc, frozen},
        {0, 272.01, FlagState::from, 87.99}, {0, 88, FlagState::loc, frozen},
        {0, 87.99, FlagState::from, -87.99}, {300, 390, FlagState::loc, frozen},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message() << "course " << c.course << " radial " << c.radial);
        const NeedleReading reading = readNeedle(receiverFor(0), c.course, c.radial, frozen);
        EXPECT_EQ(flagText(reading.flag), flagText(c.flag));
        EXPECT_NEAR(reading.deviation, c.deviation, 1e-9);
        EXPECT_EQ(reading.sector == Sector::abeam, c.flag == FlagState::loc);
    }
}

TEST(NeedleLogic, localizerIsReceivedByDistance) {
    struct Coverage {
        double nm;
        double within; ///< degrees either side of the course line, limits excluded; 0 is nowhere
    };
    for (const Coverage& c : {Coverage{0, 35}, {10, 35}, {10.5, 10}, {18, 10}, {18.5, 0}}) {
        SCOPED_TRACE(c.nm);
        const Receiver receiver = receiverFor(-c.nm - 1);
        EXPECT_TRUE(receiver.localizer);
        EXPECT_EQ(receiver.fullScale, 2);
        for (const double line : {270.0, 90.0})
            for (const double off : {0.0, 9.9, 10.0, 34.9, 35.0, 60.0}) {
                const auto reading = readNeedle(receiver, 270, line + off, 1);
                EXPECT_EQ(reading.flag, FlagState::loc);
                EXPECT_EQ(reading.sector != Sector::abeam, off < c.within) << line << "+" << off;
            }
    }
}

TEST(NeedleLogic, barClipsAtFullScale) {
    const Receiver vor = receiverFor(0);
    const Receiver localizer = receiverFor(-6);
    const std::tuple<const Receiver&, double, double> cases[] = {
        {vor, 10, 1},        {vor, 11, 1},          {vor, -10, -1},       {vor, -11, -1},
        {vor, 5.5, 0.55},    {vor, 0, 0},           {vor, -36, -1},       {localizer, 1, 0.5},
        {localizer, 2.1, 1}, {localizer, -2.5, -1}, {localizer, -35, -1}, {localizer, -36, 1},
    };
    for (const auto& [receiver, deviation, travel] : cases)
        EXPECT_NEAR(barTravel(receiver, deviation), travel, 1e-12) << deviation;
}

// Whoever flies the selected course corrects towards the bar: the station line is on that side.
RC_GTEST_PROP(NeedleLogic, barPointsToTheCourseLine, ()) {
    const double course = *rc::gen::inRange(0, 361);
    const double radial = *rc::gen::inRange(0, 3600) / 10.0;
    const auto reading = readNeedle(receiverFor(0), course, radial, 0);
    RC_PRE(reading.sector != Sector::abeam);
    const double crosswise = std::sin((radial - course) * planePi / 180);
    RC_ASSERT(std::abs(std::sin(reading.deviation * planePi / 180) + crosswise) < 1e-6);
    const bool ahead = std::cos((radial - course) * planePi / 180) > 0;
    RC_ASSERT((reading.flag == FlagState::from) == ahead);
}

} // namespace
} // namespace tarnel
