#include "trainer_fixture.h"

#include <cmath>

namespace tarnel {
namespace {

using Needles = TrainerTest;

constexpr double munLatitude = 48.180302;
constexpr double munLongitude = 11.816;

double folded(double angle) {
    return std::fmod(std::fmod(angle, 360) + 360, 360);
}

/// The difference of two angles, -180 to 180.
double between(double a, double b) {
    return std::remainder(a - b, 360);
}

// The needles show the same whichever way the chart lies, running or paused, a localizer's too.
TEST_F(Needles, AgreeInBothViews) {
    Trainer north;
    Trainer turned;
    turned.form.display.setNorthUp(false);
    const auto expectAgreement = [&](double heading) {
        const UserControl_1& left = north.form.inst2.instrument;
        const UserControl_1& right = turned.form.inst2.instrument;
        EXPECT_NEAR(between(left.adfradial, right.adfradial), 0, 0.5) << heading;
        EXPECT_NEAR(between(left.adf2radial, right.adf2radial), 0, 0.5) << heading;
        EXPECT_NEAR(north.reading3().deviation, turned.reading3().deviation, 1) << heading;
        EXPECT_EQ(north.reading3().flag, turned.reading3().flag) << heading;
        EXPECT_TRUE(turned.reading3().received) << heading;
    };
    for (const double heading : {0.0, 75.0, 181.0, 300.0}) {
        for (Trainer* trainer : {&north, &turned}) {
            trainer->form.NAVControlFace1.c_SetFreq = 0;
            trainer->placeAt(48.05, 11.62, heading);
            trainer->setCourse(trainer->form.inst3, 40);
        }
        expectAgreement(heading);
        for (Trainer* trainer : {&north, &turned}) {
            trainer->start();
            trainer->fly(120);
            trainer->start();
        }
        expectAgreement(heading);
        for (Trainer* trainer : {&north, &turned}) {
            trainer->form.NAVControlFace1.c_SetFreq = 2;
            trainer->placeAt(48.376, 11.95, heading);
        }
        expectAgreement(heading);
        EXPECT_LT(std::abs(turned.reading3().deviation), 5) << heading;
    }
}

TEST_F(Needles, RmiPointsAtItsStationsAndParksOnALocalizer) {
    placeAt(munLatitude - 0.2, munLongitude, 30);
    EXPECT_NEAR(folded(form.inst2.instrument.adfradial), 330, 0.5);
    form.NAVControlFace1.c_SetFreq = 2;
    couple();
    EXPECT_EQ(form.inst2.instrument.adfradial, 90);
}

TEST_F(Needles, NothingPointsAtAStationThatIsOff) {
    UserControl_1& left = form.inst2.instrument;
    const auto overlayShown = [&] { return form.inst3.instrument.picture.Line7to12[4].visible; };
    form.inst3OverlayBox.click();
    placeAt(48.0, 11.9, 60);
    EXPECT_TRUE(overlayShown());
    for (const Slot slot : {Slot::vor1, Slot::ndb1})
        sim().slot(slot).enabled = off;
    couple();
    EXPECT_EQ(left.adfradial, 90);
    EXPECT_EQ(left.adf2radial, 90);
    EXPECT_FALSE(overlayShown());
    EXPECT_EQ(form.inst3.instrument.c_LabelText4.get(), "");
    left.c_ADFCardselect = slavedCard;
    form.inst2TypeList.pick(adf - 1);
    EXPECT_EQ(left.adfradial, 90) << "from the first moment";
    placeAt(48.0, 11.9, 150);
    EXPECT_EQ(left.adfradial, 90);
    EXPECT_EQ(left.angle, 210) << "the card goes on turning";
    sim().slot(Slot::vor1).enabled = on;
    couple();
    EXPECT_TRUE(overlayShown());
}

TEST_F(Needles, AdfCardIsFixedByHandOrSlavedAndHasNoOthersCourse) {
    UserControl_1& dial = form.inst2.instrument;
    const auto expectAngle = [&](double angle) {
        couple();
        EXPECT_EQ(dial.angle, angle);
    };
    form.inst2TypeList.pick(vor - 1);
    placeAt(48.0, 11.9, 60);
    setCourse(form.inst2, 120);
    form.inst2TypeList.pick(adf - 1);
    expectAngle(360); // it starts at north
    dial.mouse.stepKnob(InstrumentArea::obsKnob, 25);
    expectAngle(335);
    EXPECT_EQ(sim().c_obsI2, 25) << "is recorded";
    dial.mouse.stepKnob(InstrumentArea::selector, 1);
    expectAngle(300);
    form.inst2TypeList.pick(vor - 1);
    expectAngle(240);
    dial.mouse.stepKnob(InstrumentArea::obsKnob, 1);
    couple();
    EXPECT_EQ(form.inst2.obs, 121) << "the knob counts on from the course";
}

TEST_F(Needles, GyrosTurnWithTheHeading) {
    form.inst2TypeList.pick(dg - 1);
    form.floatingGyroBox.click();
    for (const int heading : {75, 290}) {
        placeAt(48.0, 11.9, heading);
        EXPECT_EQ(form.inst2.instrument.angle, 360 - heading);
        EXPECT_EQ(form.UserControl_DG.angle, 360 - heading);
    }
}

// Turning at 3 degrees a second under a turned chart, across north.
TEST_F(Needles, CourseOnTheDialIsWhatIsRecorded) {
    form.inst2TypeList.pick(vor - 1);
    placeAt(48.05, 11.62, 200);
    form.display.setNorthUp(false);
    setCourse(form.inst2, 45);
    setCourse(form.inst3, 350);
    form.coupling.setHeadingBug(20);
    start();
    fly(70);
    ASSERT_EQ(sim().recording.sampleIndex(), 52);
    for (int i = 1; i <= 52; ++i) {
        EXPECT_EQ(sim().recording.at(i).traceObsI2, 45) << i;
        EXPECT_EQ(sim().recording.at(i).traceObsI3, 350) << i;
    }
}

// On the approach to 26R, left of the course the bar stands right, on both instruments.
TEST_F(Needles, LocalizerSensesTheRightWay) {
    form.inst2TypeList.select(vor - 1);
    form.NAVControlFace1.c_SetFreq = 2;
    const auto approach = [&](double offset) { placeAt(48.3624 + 0.0155 + offset, 11.95, 263); };
    for (const auto& [offset, sign] : {std::pair{-0.004, 1}, {0.004, -1}}) {
        approach(offset);
        EXPECT_GT(reading2().deviation * sign, 0);
        EXPECT_GT(reading3().deviation * sign, 0);
        EXPECT_EQ(reading3().flag, FlagState::loc);
        EXPECT_TRUE(reading3().received);
    }
    placeAt(48.42, 12.35, 263);
    EXPECT_FALSE(reading3().received) << "out of reach";
}

TEST_F(Needles, SwitchedOffStationsFlag) {
    form.inst2TypeList.select(vor - 1);
    for (const auto& [tuning, slot] : {std::pair{0, Slot::vor1}, {2, Slot::localizer}}) {
        form.NAVControlFace1.c_SetFreq = tuning;
        sim().slot(slot).enabled = on;
        placeAt(48.38, 11.95, 263);
        setCourse(form.inst2, 250);
        setCourse(form.inst3, 250);
        EXPECT_TRUE(reading2().received && reading3().received) << tuning;
        sim().slot(slot).enabled = off;
        couple();
        EXPECT_FALSE(reading2().received || reading3().received) << tuning;
        EXPECT_EQ(form.inst3.instrument.c_OBS_x, 250) << "the arrow follows the knob";
        EXPECT_EQ(form.inst3.instrument.adf2radial, tuning == 2 ? 83 + 90 : 250 + 90);
    }
}

TEST_F(Needles, SecondPointerIsNamedByWhatItShows) {
    const auto expectNames = [this](const char* names, int overlay) {
        couple();
        EXPECT_EQ(told(form.inst2.instrument.c_LabelText4, form.inst3.instrument.c_LabelText4),
                  names);
        EXPECT_EQ(form.inst3OverlayBox.value(), overlay);
    };
    expectNames("NDB 1 ", 0);
    form.ADFControlFace1.stepUp();
    expectNames("NDB 2 ", 0);
    form.inst3OverlayBox.click();
    expectNames("NDB 2 VOR 1", 1);
    form.NAVControlFace1.c_SetFreq = 2;
    expectNames("NDB 2 ", 2); // greyed on a localizer
    form.NAVControlFace1.c_SetFreq = 0;
    expectNames("NDB 2 VOR 1", 1);
}

} // namespace
} // namespace tarnel
