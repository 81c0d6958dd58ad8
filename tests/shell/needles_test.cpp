#include "trainer_fixture.h"

#include <cmath>

namespace tarnel {
namespace {

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
TEST(Needles, AgreeInBothViews) {
    Trainer north;
    Trainer turned;
    turned.form.setNorthUp(false);
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

TEST(Needles, RmiPointsAtItsStationsAndParksOnALocalizer) {
    Trainer trainer;
    trainer.placeAt(munLatitude - 0.2, munLongitude, 30);
    EXPECT_NEAR(folded(trainer.form.inst2.instrument.adfradial), 330, 0.5);
    trainer.form.NAVControlFace1.c_SetFreq = 2;
    trainer.couple();
    EXPECT_EQ(trainer.form.inst2.instrument.adfradial, 90);
}

TEST(Needles, NothingPointsAtAStationThatIsOff) {
    Trainer trainer;
    Form1& form = trainer.form;
    UserControl_1& left = form.inst2.instrument;
    const auto overlayShown = [&] { return form.inst3.instrument.picture.Line7to12[4].visible; };
    form.inst3OverlayBox.click();
    trainer.placeAt(48.0, 11.9, 60);
    EXPECT_TRUE(overlayShown());
    for (const Slot slot : {Slot::vor1, Slot::ndb1})
        trainer.sim().slot(slot).enabled = off;
    trainer.couple();
    EXPECT_EQ(left.adfradial, 90);
    EXPECT_EQ(left.adf2radial, 90);
    EXPECT_FALSE(overlayShown());
    EXPECT_EQ(form.inst3.instrument.c_LabelText4.get(), "");
    left.c_ADFCardselect = slavedCard;
    form.inst2TypeList.pick(adf - 1);
    EXPECT_EQ(left.adfradial, 90) << "from the first moment";
    trainer.placeAt(48.0, 11.9, 150);
    EXPECT_EQ(left.adfradial, 90);
    EXPECT_EQ(left.angle, 210) << "the card goes on turning";
    trainer.sim().slot(Slot::vor1).enabled = on;
    trainer.couple();
    EXPECT_TRUE(overlayShown());
}

TEST(Needles, AdfCardIsFixedByHandOrSlavedAndHasNoOthersCourse) {
    Trainer trainer;
    Form1& form = trainer.form;
    form.inst2TypeList.pick(vor - 1);
    trainer.placeAt(48.0, 11.9, 60);
    trainer.setCourse(form.inst2, 120);
    form.inst2TypeList.pick(adf - 1);
    trainer.couple();
    EXPECT_EQ(form.inst2.instrument.angle, 360) << "it starts at north";
    form.inst2.instrument.mouse.stepKnob(InstrumentArea::obsKnob, 25);
    trainer.couple();
    EXPECT_EQ(form.inst2.instrument.angle, 335);
    EXPECT_EQ(trainer.sim().c_obsI2, 25) << "is recorded";
    form.inst2.instrument.mouse.stepKnob(InstrumentArea::selector, 1);
    trainer.couple();
    EXPECT_EQ(form.inst2.instrument.angle, 300);
    form.inst2TypeList.pick(vor - 1);
    trainer.couple();
    EXPECT_EQ(form.inst2.instrument.angle, 240);
    form.inst2.instrument.mouse.stepKnob(InstrumentArea::obsKnob, 1);
    trainer.couple();
    EXPECT_EQ(form.inst2.obs, 121) << "the knob counts on from the course";
}

TEST(Needles, GyrosTurnWithTheHeading) {
    Trainer trainer;
    Form1& form = trainer.form;
    form.inst2TypeList.pick(dg - 1);
    form.floatingGyroBox.click();
    for (const int heading : {75, 290}) {
        trainer.placeAt(48.0, 11.9, heading);
        EXPECT_EQ(form.inst2.instrument.angle, 360 - heading);
        EXPECT_EQ(form.UserControl_DG.angle, 360 - heading);
    }
}

// Turning at 3 degrees a second under a turned chart, across north.
TEST(Needles, CourseOnTheDialIsWhatIsRecorded) {
    Trainer trainer;
    Form1& form = trainer.form;
    form.inst2TypeList.pick(vor - 1);
    trainer.placeAt(48.05, 11.62, 200);
    form.setNorthUp(false);
    trainer.setCourse(form.inst2, 45);
    trainer.setCourse(form.inst3, 350);
    form.setHeadingBug(20);
    trainer.start();
    trainer.fly(70);
    ASSERT_EQ(trainer.sim().recording.sampleIndex(), 52);
    for (int i = 1; i <= 52; ++i) {
        EXPECT_EQ(trainer.sim().recording.at(i).traceObsI2, 45) << i;
        EXPECT_EQ(trainer.sim().recording.at(i).traceObsI3, 350) << i;
    }
}

// On the approach to 26R, left of the course the bar stands right, on both instruments.
TEST(Needles, LocalizerSensesTheRightWay) {
    Trainer trainer;
    Form1& form = trainer.form;
    form.inst2TypeList.select(vor - 1);
    form.NAVControlFace1.c_SetFreq = 2;
    const auto approach = [&](double offset) {
        trainer.placeAt(48.3624 + 0.0155 + offset, 11.95, 263);
    };
    for (const auto& [offset, sign] : {std::pair{-0.004, 1}, {0.004, -1}}) {
        approach(offset);
        EXPECT_GT(trainer.reading2().deviation * sign, 0);
        EXPECT_GT(trainer.reading3().deviation * sign, 0);
        EXPECT_EQ(trainer.reading3().flag, FlagState::loc);
        EXPECT_TRUE(trainer.reading3().received);
    }
    trainer.placeAt(48.42, 12.35, 263);
    EXPECT_FALSE(trainer.reading3().received) << "out of reach";
}

TEST(Needles, SwitchedOffStationsFlag) {
    Trainer trainer;
    Form1& form = trainer.form;
    form.inst2TypeList.select(vor - 1);
    for (const auto& [tuning, slot] : {std::pair{0, Slot::vor1}, {2, Slot::localizer}}) {
        form.NAVControlFace1.c_SetFreq = tuning;
        trainer.sim().slot(slot).enabled = on;
        trainer.placeAt(48.38, 11.95, 263);
        trainer.setCourse(form.inst2, 250);
        trainer.setCourse(form.inst3, 250);
        EXPECT_TRUE(trainer.reading2().received && trainer.reading3().received) << tuning;
        trainer.sim().slot(slot).enabled = off;
        trainer.couple();
        EXPECT_FALSE(trainer.reading2().received || trainer.reading3().received) << tuning;
        EXPECT_EQ(form.inst3.instrument.c_OBS_x, 250) << "the arrow follows the knob";
        EXPECT_EQ(form.inst3.instrument.adf2radial, tuning == 2 ? 83 + 90 : 250 + 90);
    }
}

TEST(Needles, SecondPointerIsNamedByWhatItShows) {
    Trainer trainer;
    Form1& form = trainer.form;
    trainer.couple();
    EXPECT_EQ(form.inst2.instrument.c_LabelText4.get(), "NDB 1");
    form.ADFControlFace1.stepUp();
    trainer.couple();
    EXPECT_EQ(form.inst2.instrument.c_LabelText4.get(), "NDB 2");
    EXPECT_EQ(form.inst3.instrument.c_LabelText4.get(), "");
    form.inst3OverlayBox.click();
    trainer.couple();
    EXPECT_EQ(form.inst3.instrument.c_LabelText4.get(), "VOR 1");
    form.NAVControlFace1.c_SetFreq = 2;
    trainer.couple();
    EXPECT_EQ(form.inst3OverlayBox.value(), 2) << "greyed on a localizer";
    form.NAVControlFace1.c_SetFreq = 0;
    trainer.couple();
    EXPECT_EQ(form.inst3OverlayBox.value(), 1);
}

} // namespace
} // namespace tarnel
