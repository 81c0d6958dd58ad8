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
    struct Drag {
        double base, twips;
        MouseButton button;
        double result;
    };
    const Drag drags[] = {
        {0, -100, MouseButton::left, 359},       {350, 2000, MouseButton::left, 10},
        {90, 36000 / 2, MouseButton::left, 270}, {90, 1800, MouseButton::other, 92},
        {90, 449, MouseButton::other, 90},       {300, 6000, MouseButton::left, 360},
        {87.4, 100, MouseButton::left, 88}};
    const auto face = flyingFace();
    for (const Drag& drag : drags) {
        face->c_HDG = drag.base;
        face->c_HDGChange = 0;
        face->mouseDown(AutopilotKnob::heading, 50);
        face->mouseMove(50 + drag.twips, drag.button);
        face->mouseUp();
        EXPECT_EQ(face->c_HDG, drag.result) << drag.base << " by " << drag.twips;
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
    const std::tuple<AutopilotKnob, double, double, double> drags[] = {
        {speed, 120, 1800, 130},    {speed, 120, 90000, 360},    {speed, 60, -1800, 50},
        {speed, 60, -2700, 0},      {altitude, 6000, 900, 6500}, {altitude, 6000, 90000, 42000},
        {altitude, 6000, -90000, 0}};
    for (const auto& [knob, base, twips, result] : drags) {
        const auto face = flyingFace();
        Property<double>& value = knob == speed ? face->c_TAS : face->c_ALT;
        value = base;
        face->mouseDown(knob, 0);
        face->mouseMove(twips, MouseButton::other);
        face->mouseUp();
        EXPECT_EQ(value, result) << base << " by " << twips;
    }
}

TEST(Autopilot, eachDragCountsFromTheLastValue) {
    const auto face = flyingFace();
    const auto drag = [&face](AutopilotKnob knob) {
        face->mouseDown(knob, 0);
        face->mouseMove(900, MouseButton::other);
        face->mouseUp();
    };
    drag(AutopilotKnob::airSpeed);
    drag(AutopilotKnob::airSpeed);
    EXPECT_EQ(face->c_TAS, 130) << "the first of all counts from 120";
    drag(AutopilotKnob::altitude);
    drag(AutopilotKnob::altitude);
    EXPECT_EQ(face->c_ALT, 7000) << "the first of all counts from 60";
    face->c_ALT = 2000;
    drag(AutopilotKnob::altitude);
    EXPECT_EQ(face->c_ALT, 2500);
}

TEST(Autopilot, leftDragSetsARate) {
    const auto face = flyingFace();
    const auto drive = [&face](AutopilotKnob knob, double twips, int ticks) {
        face->mouseDown(knob, 0);
        face->mouseMove(twips, MouseButton::left);
        while (ticks-- > 0)
            face->Timer1();
        face->mouseUp();
        face->Timer1(); // nothing moves after the release
    };
    face->c_TAS = 120;
    drive(AutopilotKnob::airSpeed, 500, 3);
    EXPECT_EQ(face->c_TAS, 135);
    drive(AutopilotKnob::airSpeed, 500, 100);
    EXPECT_EQ(face->c_TAS, 360);
    drive(AutopilotKnob::airSpeed, -3000, 11);
    EXPECT_EQ(face->c_TAS, 0) << "below 50 it falls to 0";
    drive(AutopilotKnob::airSpeed, 900, 1);
    EXPECT_EQ(face->c_TAS, 0) << "30 and twice 9 are 48";
    drive(AutopilotKnob::airSpeed, 1000, 1);
    EXPECT_EQ(face->c_TAS, 50);
    EXPECT_EQ(face->airSpeedDigits.pictures(), (Pictures{1, 6, 1}));

    face->c_ALT = 6000;
    drive(AutopilotKnob::altitude, 200, 4);
    EXPECT_EQ(face->c_ALT, 6800);
    drive(AutopilotKnob::altitude, -5000, 2);
    EXPECT_EQ(face->c_ALT, 0);

    face->c_startTimer = 0;
    drive(AutopilotKnob::altitude, 200, 4);
    EXPECT_EQ(face->c_ALT, 0);
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
