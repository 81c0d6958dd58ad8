#include "core/rounding.h"
#include "instruments/ap_control_face.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cmath>
#include <memory>
#include <vector>

namespace tarnel {
namespace {

using Pictures = std::vector<std::int16_t>;

std::unique_ptr<APControlFace> flyingFace() {
    auto face = std::make_unique<APControlFace>();
    face->c_OnOff = 1;
    face->c_LockSettings = 1;
    face->c_startTimer = 1;
    return face;
}

TEST(Autopilot, holdsTheHeading) {
    const std::tuple<double, double, int> holds[] = {
        {360, 350, 3},  {360, 355, 1},   {360, 354, 3}, {10, 350, 3}, {350, 10, -3},
        {360, 0, 0},    {0, 360, 0},     {0, 357, 1},   {0, 180, 3},  {360, 179, -3},
        {90, 84, 3},    {90, 84.1, 1},   {90, 95, -1},  {90, 96, -3}, {90, 90.04, 0},
        {90, 89.96, 0}, {90, 90.06, -1}, {90, 270, -3}, {270, 90, 3}, {2, 358, 3},
    };
    const auto face = flyingFace();
    for (const auto& [selected, actual, rate] : holds) {
        face->c_HDG = selected;
        face->c_ActualHDG = actual;
        EXPECT_EQ(face->c_APTurnrate, rate) << selected << " from " << actual;
    }
}

RC_GTEST_PROP(Autopilot, turnsTheShortWayAndArrives, ()) {
    const double selected = *rc::gen::inRange(0, 361);
    const int start = *rc::gen::inRange(0, 3 * 360);
    double heading = start / 3.0;
    const double apart = std::remainder(selected - heading, 360);
    const int first = headingHoldRate(selected, heading);
    if (std::abs(apart) < 179.9 && std::abs(apart) > 0.1)
        RC_ASSERT((first > 0) == (apart > 0));
    int ticks = 0;
    for (; headingHoldRate(selected, heading) != 0; ++ticks) {
        RC_ASSERT(ticks < 250);
        heading += headingHoldRate(selected, heading) / 3.0;
        heading = heading < 0 ? heading + 360 : heading >= 360 ? heading - 360 : heading;
    }
    RC_ASSERT(std::abs(std::remainder(selected - heading, 360)) < 0.1);
}

TEST(Autopilot, readoutsHaveThreeDigits) {
    const auto face = flyingFace();
    face->c_HDG = 7.9;
    EXPECT_EQ(face->headingDigits.pictures(), (Pictures{1, 1, 8}));
    face->c_TAS = 120;
    EXPECT_EQ(face->airSpeedDigits.pictures(), (Pictures{2, 3, 1}));
    face->c_ALT = 6000;
    EXPECT_EQ(face->altitudeDigits.pictures(), (Pictures{1, 7, 1}));
}

TEST(Autopilot, headingKnob) {
    constexpr auto left = MouseButton::left;
    constexpr auto other = MouseButton::other;
    const std::tuple<double, double, MouseButton, double> drags[] = {
        {0, -100, left, 359},  {350, 2000, left, 10}, {90, 36000 / 2, left, 270},
        {90, 1800, other, 92}, {90, 449, other, 90},  {300, 6000, left, 360},
        {87.4, 100, left, 88}};
    const auto face = flyingFace();
    for (const auto& [base, twips, button, result] : drags) {
        face->c_HDG = base;
        face->c_HDGChange = 0;
        face->mouseDown(AutopilotKnob::heading, 50);
        face->mouseMove(50 + twips, button);
        face->mouseUp();
        EXPECT_EQ(face->c_HDG, result) << base << " by " << twips;
        EXPECT_EQ(face->c_HDGChange, 1);
    }
    face->c_HDG = 10;
    face->mouseDown(AutopilotKnob::heading, 0);
    face->c_HDG = 100;
    face->mouseMove(500, MouseButton::left);
    EXPECT_EQ(face->c_HDG, 15) << "a set in the middle of a drag moves no base";
    face->c_ActualHDG = 15;
    EXPECT_EQ(face->c_APTurnrate, 0) << "the hold follows the drag";
}

TEST(Autopilot, coarseDragsOfSpeedAndAltitude) {
    const auto speed = AutopilotKnob::airSpeed;
    const auto altitude = AutopilotKnob::altitude;
    // -1: from the last value; the first of all counts from 120 knots and 6000 feet.
    const std::tuple<AutopilotKnob, double, double, double> drags[] = {
        {speed, -1, 900, 125},       {speed, -1, 900, 130},          {altitude, -1, 900, 6500},
        {altitude, -1, 900, 7000},   {speed, 120, 1800, 130},        {speed, 120, 90000, 360},
        {speed, 60, -1800, 50},      {speed, 60, -2700, 0},          {altitude, 6000, 900, 6500},
        {altitude, 2000, 900, 2500}, {altitude, 6000, 90000, 42000}, {altitude, 6000, -90000, 0}};
    const auto face = flyingFace();
    for (const auto& [knob, base, twips, result] : drags) {
        Property<double>& value = knob == speed ? face->c_TAS : face->c_ALT;
        if (base >= 0)
            value = base;
        face->mouseDown(knob, 0);
        face->mouseMove(twips, MouseButton::other);
        face->mouseUp();
        EXPECT_EQ(value, result) << base << " by " << twips;
    }
}

TEST(Autopilot, leftDragSetsARate) {
    const auto face = flyingFace();
    face->c_TAS = 120;
    face->c_ALT = 6000;
    const auto speed = AutopilotKnob::airSpeed;
    const auto altitude = AutopilotKnob::altitude;
    // Below 50 knots it falls to 0: 30 and twice 9 are 48.
    const std::tuple<AutopilotKnob, double, int, double> drives[] = {
        {speed, 500, 3, 135}, {speed, 500, 100, 360},   {speed, -3000, 11, 0},  {speed, 900, 1, 0},
        {speed, 1000, 1, 50}, {altitude, 200, 4, 6800}, {altitude, -5000, 2, 0}};
    const auto drive = [&face](AutopilotKnob knob, double twips, int ticks) {
        face->mouseDown(knob, 0);
        face->mouseMove(twips, MouseButton::left);
        while (ticks-- > 0)
            face->Timer1();
        face->mouseUp();
        face->Timer1(); // nothing moves after the release
        return (knob == AutopilotKnob::airSpeed ? face->c_TAS : face->c_ALT).get();
    };
    for (const auto& [knob, twips, ticks, result] : drives)
        EXPECT_EQ(drive(knob, twips, ticks), result) << twips;
    EXPECT_EQ(face->airSpeedDigits.pictures(), (Pictures{1, 6, 1}));
    face->c_startTimer = 0;
    EXPECT_EQ(drive(altitude, 200, 4), 0);
}

TEST(Autopilot, wheelAndKeysStep) {
    const auto face = flyingFace();
    face->c_HDG = 359.6;
    face->stepHeading(1);
    EXPECT_EQ(face->c_HDG, 1);
    face->stepHeading(-2);
    EXPECT_EQ(face->c_HDG, 359);
    const std::pair<int, double> speeds[] = {{1, 50}, {10, 60}, {-11, 0}, {60, 60}, {999, 360}};
    for (const auto& [knots, result] : speeds) {
        face->stepTAS(knots);
        EXPECT_EQ(face->c_TAS, result) << knots;
    }
    const std::pair<int, double> altitudes[] = {{-1, 0}, {5, 500}, {500, 42000}, {-1, 41900}};
    for (const auto& [hundreds, result] : altitudes) {
        face->stepALT(hundreds);
        EXPECT_EQ(face->c_ALT, result) << hundreds;
    }
}

TEST(Autopilot, lockedKnobsDoNothingButSync) {
    const auto face = flyingFace();
    face->c_TAS = 120;
    face->mouseDown(AutopilotKnob::airSpeed, 0);
    face->mouseMove(500, MouseButton::left);
    face->c_LockSettings = 0;
    face->Timer1();
    face->mouseUp();
    for (const auto knob :
         {AutopilotKnob::heading, AutopilotKnob::airSpeed, AutopilotKnob::altitude}) {
        face->mouseDown(knob, 0);
        face->mouseMove(9000, MouseButton::other);
        face->mouseUp();
    }
    face->stepHeading(1);
    face->stepTAS(1);
    face->stepALT(1);
    EXPECT_EQ(face->c_TAS, 120);
    EXPECT_EQ(face->c_ALT, 0);
    EXPECT_EQ(face->c_HDGChange, 0);
    face->c_ActualHDG = 87;
    face->doubleClick(AutopilotKnob::airSpeed);
    EXPECT_EQ(face->c_HDG, 0);
    face->doubleClick(AutopilotKnob::heading);
    EXPECT_EQ(face->c_HDG, 87);
    EXPECT_EQ(face->c_HDGChange, 1);
}

} // namespace
} // namespace tarnel
