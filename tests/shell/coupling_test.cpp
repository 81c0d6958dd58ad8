#include "trainer_fixture.h"

#include <gmock/gmock.h>

namespace tarnel {
namespace {

using testing::HasSubstr;

TEST(Autopilot, TurnsAtThreeThenOneDegreeASecondAndHolds) {
    Trainer trainer;
    trainer.form.APControlFace1.stepHeading(90);
    trainer.couple();
    trainer.start();
    trainer.fly(10);
    EXPECT_EQ(trainer.sim().Turn_Rate, 3);
    EXPECT_NEAR(trainer.sim().c_HDG, 30, 1.01);
    trainer.fly(19);
    EXPECT_EQ(trainer.sim().Turn_Rate, 1);
    trainer.fly(10);
    EXPECT_EQ(trainer.sim().Turn_Rate, 0);
    EXPECT_NEAR(trainer.sim().c_HDG, 90, 0.05);
}

TEST(HeadingBug, EverySourceReachesAllOthers) {
    Trainer trainer;
    Form1& form = trainer.form;
    const auto bugs = [&form] {
        return std::vector<double>{
            form.APControlFace1.c_HDG, double(form.inst2.instrument.c_HDGbug),
            double(form.inst3.instrument.c_HDGbug), double(form.UserControl_DG.c_HDGbug),
            double(form.UserControl11.c_HDGbug)};
    };
    form.floatingGyroBox.click();
    int expected = 0;
    const auto expectAll = [&](const char* source) {
        trainer.couple(1);
        EXPECT_THAT(bugs(), testing::Each(double(expected))) << source;
    };
    form.APControlFace1.stepHeading(expected = 40);
    expectAll("autopilot");
    for (UserControl_1* source :
         {&form.inst3.instrument, &form.inst2.instrument, &form.UserControl_DG}) {
        source->mouse.stepKnob(InstrumentArea::headingBugKnob, 20);
        expected += 20;
        expectAll("instrument");
    }
}

TEST(Dme, ShowsTheSelectedSourceAndZeroWhenSwitchedOff) {
    Trainer trainer;
    Form1& form = trainer.form;
    trainer.placeAt(48.0, 11.5, 0);
    trainer.start();
    trainer.fly(3);
    for (const auto& [selection, slot] :
         {std::pair{0, Slot::vor1}, {1, Slot::vor2}, {2, Slot::localizer}}) {
        form.DMEControlFace1.c_SetFreq = selection;
        trainer.couple(1);
        EXPECT_EQ(form.DMEControlFace1.c_DMEnm, std::lround(trainer.sim().slot(slot).dme * 10))
            << selection;
        const Slot speed = slot == Slot::vor1 ? Slot::vor1 : Slot::localizer;
        EXPECT_EQ(form.DMEControlFace1.c_DMEkt, trainer.sim().slot(speed).dmeGroundSpeed);
    }
    form.UserControl11.slot(Slot::localizer).dmeEnabled = off;
    trainer.couple(1);
    EXPECT_EQ(form.DMEControlFace1.c_DMEnm, 0);
    EXPECT_EQ(form.DMEControlFace1.c_DMEkt, 0);
}

TEST(Dme, FollowsAReceiverAsSoonAsItsSwitchIsTurned) {
    Trainer trainer;
    trainer.form.DMEControlFace1.selectMode(DmeMode::r2);
    trainer.couple(1);
    EXPECT_EQ(trainer.form.DMEControlFace1.c_SetFreq, 1);
}

TEST(Autopilot, TakesItsHighestAltitudeWithoutAnError) {
    Trainer trainer;
    trainer.form.APControlFace1.stepALT(400);
    trainer.couple();
    EXPECT_EQ(trainer.form.APControlFace1.c_ALT, 42000);
    EXPECT_TRUE(trainer.world.boxes.empty());
}

TEST(PractiseArea, StopsTheFlightOnceWithItsMessage) {
    Trainer trainer;
    trainer.placeAt(48.17, 13.2, 90);
    trainer.start();
    trainer.fly(600);
    ASSERT_EQ(trainer.world.boxes.size(), 1);
    EXPECT_THAT(trainer.world.boxes[0], HasSubstr("You are outside of the practise Area."));
    EXPECT_FALSE(trainer.form.simulationRuns());
    EXPECT_EQ(trainer.form.modePanel.text(), "Pause [M]ode");
    EXPECT_NEAR(trainer.sim().slot(Slot::vor2).dme, 80.1, 0.11);
}

TEST(RunTimeErrors, PauseTheFlightAndAreToldOnce) {
    Trainer trainer;
    trainer.start();
    trainer.sim().c_LocCrs1 = 1e9;
    trainer.couple(5);
    ASSERT_EQ(trainer.world.boxes.size(), 1);
    EXPECT_THAT(trainer.world.boxes[0], HasSubstr("6"));
    EXPECT_FALSE(trainer.form.simulationRuns());
    trainer.sim().c_LocCrs1 = 83;
    trainer.start();
    trainer.fly(3);
    EXPECT_TRUE(trainer.form.simulationRuns());
    EXPECT_EQ(trainer.world.boxes.size(), 1);
}

TEST(Stopwatch, RunsStopsAndResetsAtOnceWhenPaused) {
    Trainer trainer;
    trainer.form.stopwatchStartButton.click();
    trainer.start();
    trainer.fly(65.5);
    EXPECT_EQ(trainer.form.tvsmtimer1.minsec.get(), "01.05");
    trainer.form.stopwatchStartButton.click();
    trainer.fly(10);
    EXPECT_EQ(trainer.form.tvsmtimer1.minsec.get(), "01.05");
    trainer.form.startButton.click();
    trainer.form.stopwatchResetButton.click();
    trainer.couple(1);
    EXPECT_EQ(trainer.form.tvsmtimer1.minsec.get(), "00.00");
    EXPECT_EQ(trainer.form.flightTimePanel.text(), "0h1min15sec");
}

TEST(Strip, AnAbandonedTrackStaysAway) {
    Trainer trainer;
    trainer.start();
    trainer.fly(120);
    trainer.form.startButton.click();
    EXPECT_FALSE(trainer.sim().picture.trace.all().empty());
    trainer.sim().placeAircraft(ChartPoint{1000, 1000});
    trainer.form.stepScale(1);
    EXPECT_TRUE(trainer.sim().picture.trace.all().empty());
}

TEST(Strip, HideAndTraceKeepEachOther) {
    Trainer trainer;
    Form1& form = trainer.form;
    form.replayPage.hide.click();
    EXPECT_EQ(trainer.sim().c_AirplaneEN, 0);
    EXPECT_EQ(trainer.sim().c_TraceEN, 0);
    EXPECT_EQ(form.hidePanel.text(), "[H]ide ON");
    form.chartPage.trace.click();
    form.replayPage.hide.click();
    EXPECT_EQ(trainer.sim().c_TraceEN, 0) << "the trace was switched off meanwhile";
    form.chartPage.trace.click();
    EXPECT_EQ(trainer.sim().c_TraceEN, 1);
}

TEST(Strip, LockTakesTheKnobsAndDialsButNotTheAutopilot) {
    Trainer trainer;
    Form1& form = trainer.form;
    form.replayPage.lock.click();
    form.NAVControlFace1.stepUp();
    form.inst3.instrument.mouse.stepKnob(InstrumentArea::obsKnob, 5);
    form.APControlFace1.stepHeading(5);
    trainer.couple();
    EXPECT_EQ(form.NAVControlFace1.c_SetFreq, 0);
    EXPECT_EQ(form.inst3.obsHsi, 0);
    EXPECT_EQ(form.APControlFace1.c_HDG, 5);
    form.replayPage.lock.click();
    form.NAVControlFace1.stepUp();
    EXPECT_EQ(form.NAVControlFace1.c_SetFreq, 1);
}

TEST(Panel, AnotherInstrumentTakesTheObsOver) {
    Trainer trainer;
    Form1& form = trainer.form;
    EXPECT_EQ(form.inst3ChannelButton.caption(), Text::channelObs);
    form.inst2TypeList.select(vor - 1);
    trainer.couple(1);
    EXPECT_EQ(form.inst3ChannelButton.caption(), Text::channelNav);
    EXPECT_EQ(form.inst2ChannelButton.caption(), Text::channelObs);
    form.inst3ChannelButton.click();
    EXPECT_EQ(form.inst3.channels.hsi, 1) << "the first click takes the OBS, not the next station";
    form.inst3ChannelButton.click();
    EXPECT_EQ(form.inst3.channels.hsi, 2);
}

TEST(Panel, LargeDisplayReloadsItsPictureAndShrinksTheChart) {
    Trainer trainer;
    trainer.form.inst3Large.click();
    EXPECT_THAT(trainer.form.inst3.instrument.picture.Image1.file, HasSubstr("g.jpg"));
    EXPECT_LT(trainer.sim().c_CenterTwips, 3405);
    trainer.form.inst3Small.click();
    EXPECT_EQ(trainer.sim().c_CenterTwips, 3405);
}

} // namespace
} // namespace tarnel
