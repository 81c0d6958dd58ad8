#include "shell/trainer_fixture.h"

namespace tarnel {
namespace {

class StripTest : public TrainerTest {
  protected:
    /// A flight of `seconds`, then a pause.
    void record(double seconds) {
        start();
        fly(seconds);
        start();
        couple();
    }
    /// Fires the replay's timer as often, with the coupling in between.
    void replay(int firings) {
        for (int i = 0; i < firings; ++i) {
            form.Timer2();
            couple(1);
        }
    }
    void scrollTo(int sample) {
        form.replayPage.bar.scrollTo(sample);
        couple();
    }
    /// What acts only on a flight at rest.
    void expectRestingControls(bool enabled) {
        expectReplayControls(enabled);
        EXPECT_EQ(form.fileMenu.newSession.enabled(), enabled);
    }
    void expectReplayControls(bool enabled) {
        for (FormControl* control : std::initializer_list<FormControl*>{
                 &form.replayPage.play, &form.replayPage.stop, &form.replayPage.loop,
                 &form.replayPage.bar, &form.replayPage.lock})
            EXPECT_EQ(control->enabled(), enabled) << control->name();
    }
    [[nodiscard]] int newest() { return sim().c_TraceBufferMax; }
};

TEST_F(StripTest, TwoClicksOnStartComeBack) {
    EXPECT_FALSE(form.fileMenu.loadSession.onClick && !form.fileMenu.loadSession.enabled());
    EXPECT_TRUE(form.fileMenu.newSession.enabled());
    form.pages.wind.click();
    start();
    EXPECT_TRUE(form.simulationRuns());
    EXPECT_TRUE(form.pages.replay.chosen());
    EXPECT_EQ(form.modePanel.text(), "Training [M]ode");
    expectRestingControls(false);
    form.pages.chart.click();
    start();
    EXPECT_FALSE(form.simulationRuns());
    EXPECT_TRUE(form.pages.replay.chosen());
    EXPECT_EQ(form.modePanel.text(), "Pause [M]ode");
    expectRestingControls(true);
}

TEST_F(StripTest, APauseShowsTheNewestSampleAndGoesOnFromThere) {
    record(40);
    EXPECT_EQ(form.replayPage.bar.max(), newest());
    EXPECT_EQ(form.replayPage.bar.value(), newest());
    const GeoPosition before = sim().aircraft.published();
    couple(50);
    EXPECT_EQ(sim().aircraft.published(), before);
    EXPECT_FALSE(sim().inReplay());
    const int samples = newest();
    record(4);
    EXPECT_EQ(newest(), samples + 3);
}

TEST_F(StripTest, ReplayTakesFourFiringsASampleAndStopsLocked) {
    record(12);
    scrollTo(1);
    form.replayPage.play.click();
    EXPECT_TRUE(form.replayRuns());
    EXPECT_FALSE(form.startButton.enabled());
    replay(4);
    EXPECT_EQ(form.replayPage.bar.value(), 2);
    replay(4);
    EXPECT_EQ(form.replayPage.bar.value(), 3);
    replay(4 * newest());
    EXPECT_FALSE(form.replayRuns());
    EXPECT_EQ(form.replayPage.bar.value(), newest());
    EXPECT_EQ(sim().c_RepeatValue, newest());
    EXPECT_EQ(form.replayPage.lock.value(), 1);
    EXPECT_TRUE(form.replayPage.stop.chosen());
    EXPECT_TRUE(form.startButton.enabled());
    form.replayPage.loop.click();
    form.replayPage.play.click(); // once more from the beginning, over and over
    for (int round = 0; round < 2; ++round) {
        replay(1);
        EXPECT_EQ(form.replayPage.bar.value(), 1);
        replay(4 * newest() - 1);
    }
    EXPECT_TRUE(form.replayRuns());
    start(); // rests while the replay runs
    EXPECT_FALSE(form.simulationRuns());
}

TEST_F(StripTest, InterpolationMovesAtEachFiring) {
    record(20);
    scrollTo(1);
    form.replayPage.interpolate.click();
    form.replayPage.play.click();
    double last = 0;
    for (int i = 0; i < 40; ++i) {
        replay(1);
        const double latitude = sim().aircraft.published().latitude;
        EXPECT_GT(latitude, last) << i; // northwards, never back
        last = latitude;
    }
}

TEST_F(StripTest, ALockedReplayShowsAllThatWasSeen) {
    form.inst2TypeList.pick(vor - 1);
    form.NAVControlFace1.c_SetFreq = 1;
    form.ADFControlFace1.c_SetFreq = 1;
    setCourse(form.inst2, 77);
    form.setHeadingBug(30);
    form.inst2.instrument.c_ADFCardselect = slavedCard;
    form.APControlFace1.c_ALT = 4500.0;
    record(20);
    const auto bug = form.inst2.instrument.c_HDGbug.get();
    setCourse(form.inst2, 10);
    form.inst2TypeList.pick(adf - 1);
    form.NAVControlFace1.c_SetFreq = 0;
    form.ADFControlFace1.c_SetFreq = 0;
    form.setHeadingBug(200);
    form.APControlFace1.c_TAS = 200.0;
    form.APControlFace1.c_ALT = 9000.0;
    form.inst2.instrument.c_ADFCardselect = fixedCard;
    couple();
    EXPECT_EQ(sim().c_Altitude, 6000) << "pinned, whatever the autopilot says";

    scrollTo(5);
    EXPECT_EQ(form.replayPage.lock.value(), 1) << "looking at a flight locks it";
    EXPECT_EQ(form.inst2.type, vor);
    EXPECT_EQ(form.inst2.instrument.Display, vor);
    EXPECT_EQ(form.inst2TypeList.index(), vor - 1);
    EXPECT_EQ(form.NAVControlFace1.c_SetFreq, 1);
    EXPECT_EQ(form.ADFControlFace1.c_SetFreq, 1);
    EXPECT_EQ(form.inst2.obs, 77);
    EXPECT_EQ(form.inst2.instrument.c_HDGbug, bug);
    EXPECT_EQ(form.UserControl_DG.c_HDGbug, bug);
    EXPECT_EQ(form.APControlFace1.c_HDG, 30);
    EXPECT_EQ(form.APControlFace1.c_TAS, 120);
    EXPECT_EQ(form.APControlFace1.c_ALT, 4500);
    EXPECT_EQ(form.inst2.instrument.c_ADFCardselect, slavedCard);
    EXPECT_EQ(sim().recording.at(5).traceInst2, vor);
    // The knob goes on from the course that is shown.
    form.replayPage.lock.click();
    setCourse(form.inst2, 78);
    EXPECT_EQ(form.inst2.obs, 78);
}

TEST_F(StripTest, AnUnlockedReplayLeavesThePanelAndWritesItOverTheRecording) {
    form.inst2TypeList.pick(vor - 1);
    form.setHeadingBug(30);
    record(20);
    scrollTo(8);
    form.replayPage.lock.click();
    form.inst2TypeList.pick(hsi - 1);
    form.setHeadingBug(200);
    couple();
    scrollTo(5);
    EXPECT_EQ(form.inst2.type, hsi);
    for (const auto* bug :
         {&form.inst2.instrument.c_HDGbug, &form.UserControl_DG.c_HDGbug, &sim().c_HDGbug})
        EXPECT_EQ(bug->get(), 200);
    EXPECT_EQ(sim().recording.at(5).traceInst2, hsi);
    EXPECT_EQ(sim().recording.at(6).traceInst2, vor);
    form.APControlFace1.c_TAS = 200.0;
    couple();
    EXPECT_EQ(sim().c_TAS, 120); // the sample's, whatever the autopilot is set to
}

TEST_F(StripTest, ALoadedSessionMovesTheBarOnceAndNeverInFlight) {
    record(20);
    sim().c_HscrollRepeatValue = 3;
    couple(1);
    EXPECT_EQ(form.replayPage.bar.value(), 3);
    EXPECT_EQ(sim().c_RepeatValue, 3);
    EXPECT_EQ(sim().c_HscrollRepeatValue, 0);
    start();
    sim().c_HscrollRepeatValue = 2;
    fly(8);
    EXPECT_TRUE(form.simulationRuns());
    EXPECT_EQ(newest(), 3 + 6);
}

TEST_F(StripTest, BothHideBoxesHideAllThatGivesThePlaceAway) {
    form.pressKey('V');
    record(12);
    EXPECT_EQ(sim().c_SpeedVectorEN, 1);
    form.chartPage.hide.click();
    EXPECT_EQ(form.replayPage.hide.value(), 1);
    EXPECT_EQ(form.hidePanel.text(), "[H]ide ON");
    EXPECT_EQ(form.vectorsPanel.text(), "[V]-Vectors OFF");
    EXPECT_EQ(sim().c_AirplaneEN + sim().c_TraceEN + sim().c_SpeedVectorEN + sim().c_TraceAheadEN,
              0);
    scrollTo(4);
    EXPECT_TRUE(sim().picture.trace.all().empty());
    form.replayPage.hide.click();
    EXPECT_EQ(form.chartPage.hide.value(), 0);
    EXPECT_EQ(sim().c_SpeedVectorEN, 1);
    EXPECT_EQ(sim().c_TraceEN, 1);
    EXPECT_EQ(form.vectorsPanel.text(), "[V]-Vectors Type1");
    EXPECT_FALSE(sim().picture.trace.all().empty());
    form.replayPage.hide.click();
    form.chartPage.trace.click(); // is switched off meanwhile, and stays so
    form.replayPage.hide.click();
    EXPECT_EQ(sim().c_TraceEN, 0);
}

TEST_F(StripTest, LettersDoWhatThePanelsSay) {
    const auto press = [this](const char* letters) {
        for (const char* letter = letters; *letter; ++letter)
            EXPECT_TRUE(form.pressKey(*letter));
        couple();
    };
    press("M");
    EXPECT_TRUE(form.simulationRuns());
    press("P"); // no replay in flight
    EXPECT_FALSE(form.replayRuns());
    press("MP");
    EXPECT_TRUE(form.replayRuns());
    press("P");
    EXPECT_FALSE(form.replayRuns());
    press("HT");
    EXPECT_EQ(form.hidePanel.text(), "[H]ide ON");
    EXPECT_EQ(form.tracePanel.text(), "[T]race OFF");
    press("HVV");
    EXPECT_EQ(form.vectorsPanel.text(), "[V]-Vectors Type2");
    EXPECT_EQ(sim().c_TraceAheadEN, 1);
    EXPECT_EQ(sim().c_SpeedVectorEN, 0);
    press("V");
    EXPECT_EQ(form.vectorsPanel.text(), "[V]-Vectors OFF");
    press("R");
    EXPECT_EQ(sim().c_NAVRadBorder, on);
    std::vector<std::string> winds;
    for (int i = 0; i < 3; ++i) {
        press("W");
        winds.push_back(form.windPanel.text());
    }
    EXPECT_THAT(winds, testing::ElementsAre("[W]ind manual", "[W]ind random", "[W]ind OFF"));
    EXPECT_FALSE(form.pressKey('X'));
}

TEST_F(StripTest, TheWindPageTellsWhereTheWindComesFrom) {
    EXPECT_EQ(form.windPage.readout.text(), "hidden");
    form.windPage.show.click();
    form.windPage.random.click();
    couple();
    const std::string first = form.windPage.readout.text();
    EXPECT_EQ(first, sim().c_wind.get());
    std::string next = first;
    for (int i = 0; i < 20 && next == first; ++i) { // another click draws anew
        form.windPage.random.click();
        couple();
        next = form.windPage.readout.text();
    }
    EXPECT_NE(next, first);
    form.windPage.none.click();
    couple();
    EXPECT_EQ(form.windPage.readout.text(), "0/0");
    form.setManualWind(270, 20);
    couple();
    EXPECT_TRUE(form.windPage.manual.chosen());
    EXPECT_EQ(form.windPage.readout.text(), "270/20");
    form.setNorthUp(false);
    form.windPage.draw.click();
    sim().mouse.down(ChartButton::left, {1000, 1000});
    sim().mouse.move({1000, 2000});
    sim().mouse.up();
    couple();
    EXPECT_EQ(form.windPage.readout.text(), "0/20");
    record(8); // recorded, taken away, and brought back by the replay
    form.windPage.none.click();
    scrollTo(3);
    EXPECT_EQ(form.windPanel.text(), "[W]ind manual");
    EXPECT_EQ(sim().c_wind.get(), "0/20");
}

TEST_F(StripTest, CommentsAreWrittenShownAndSteppedThrough) {
    start();
    fly(8);
    form.commentPanel.text.type("Intercept QDM 120");
    form.commentPanel.startStop.click();
    fly(8);
    EXPECT_TRUE(form.commentPanel.comment.visible());
    EXPECT_EQ(form.commentPanel.comment.text(), "Intercept QDM 120");
    form.commentPanel.startStop.click();
    EXPECT_EQ(form.commentPanel.text.text(), "");
    EXPECT_EQ(form.commentPanel.number.text(), "2");
    fly(4);
    EXPECT_FALSE(form.commentPanel.comment.visible());
    start();
    form.commentPanel.previous.click();
    EXPECT_EQ(form.commentPanel.text.text(), "Intercept QDM 120");
    EXPECT_EQ(form.commentPanel.number.text(), "1");
    for (int i = 0; i < 150; ++i)
        form.commentPanel.next.click();
    EXPECT_EQ(form.commentPanel.number.text(), "101");
    EXPECT_EQ(world.boxes.size(), 50U);
    EXPECT_THAT(world.boxes[0], testing::HasSubstr("101"));
    EXPECT_TRUE(sim().hasCommentMarks());
    form.commentPanel.deleteAll.click();
    EXPECT_FALSE(sim().hasCommentMarks());
}

TEST_F(StripTest, AFullCommentTableIsToldAndTheFlightGoesOn) {
    start();
    for (int i = 0; i < 2 * Comments::count; ++i)
        form.commentPanel.startStop.click();
    EXPECT_TRUE(world.boxes.empty());
    form.commentPanel.text.type("one too many");
    form.commentPanel.startStop.click();
    EXPECT_EQ(world.boxes.size(), 1U);
    EXPECT_EQ(form.commentPanel.text.text(), "one too many");
    EXPECT_TRUE(form.simulationRuns());
}

TEST_F(StripTest, EditingAChartAsksForMarkedCommentsAndRestsTheReplay) {
    form.stationPage.edit.click();
    EXPECT_TRUE(world.asked.empty()) << "no comment, no question";
    form.stationPage.edit.click();
    start();
    form.commentPanel.startStop.click();
    fly(8);
    start();
    world.answer = false;
    form.stationPage.edit.click();
    EXPECT_EQ(world.asked.size(), 1U);
    EXPECT_EQ(form.stationPage.edit.value(), 0);
    EXPECT_EQ(sim().c_mapedit, 0);
    EXPECT_TRUE(sim().hasCommentMarks());
    world.answer = true;
    form.stationPage.edit.click();
    EXPECT_EQ(sim().c_mapedit, 1);
    EXPECT_FALSE(sim().hasCommentMarks());
    couple();
    expectReplayControls(false);
    EXPECT_FALSE(form.pressKey('P') && form.replayRuns());
    form.stationPage.edit.click();
    expectReplayControls(true);
}

TEST_F(StripTest, APracticePanelTakesItsStates) {
    EXPECT_FALSE(form.practicePanel.frame.visible());
    sim().c_TrackDelta = 1;
    EXPECT_TRUE(form.practicePanel.frame.visible());
    EXPECT_TRUE(form.practicePanel.keep.chosen());
    EXPECT_FALSE(form.practicePanel.recall.enabled());
    EXPECT_EQ(sim().c_TrackDelta, 0);
    sim().c_TrackDelta = 3;
    EXPECT_TRUE(form.practicePanel.recall.chosen());
    EXPECT_TRUE(form.practicePanel.recall.enabled());
    sim().c_TrackDelta = 9;
    EXPECT_TRUE(form.practicePanel.recall.chosen());
    sim().c_TrackDelta = 0;
    EXPECT_FALSE(form.practicePanel.frame.visible());
}

TEST_F(StripTest, ChartAndStationsAnswerTheirPages) {
    const std::int16_t scale = sim().c_MAPscale;
    const SplitPosition centre = sim().view.mapCenter;
    form.stepScale(1);
    EXPECT_EQ(sim().c_MAPscale, 250); // from between two of the scales to the next
    form.stepScale(-1);
    EXPECT_EQ(sim().c_MAPscale, 167);
    form.setNorthUp(false);
    form.chartPage.reset.click();
    EXPECT_EQ(sim().c_MAPnorthUP, 1);
    EXPECT_EQ(sim().c_MAPscale, scale);
    EXPECT_EQ(sim().view.mapCenter, centre);
    for (const Station& station : sim().stations) {
        EXPECT_GT(std::min(station.place.wide.x, station.place.wide.y), 500);
        EXPECT_LT(std::max(station.place.wide.x, station.place.wide.y), 6300);
    }
    record(60);
    form.chartPage.centre.click();
    EXPECT_EQ(sim().aircraft.place.point, (ChartPoint{3405, 3405}));
    form.stationPage.vor1.click();
    EXPECT_EQ(sim().slot(Slot::vor1).enabled, off);
    EXPECT_EQ(sim().slot(Slot::vor1).dmeEnabled, on);
    form.stationPage.dme1.click();
    EXPECT_FALSE(inSlot(sim().stations, Slot::vor1).buttonDown);
    sim().slot(Slot::ndb2).enabled = off; // as a chart would
    couple();
    EXPECT_EQ(form.stationPage.ndb2.value(), 0);
}

} // namespace
} // namespace tarnel
