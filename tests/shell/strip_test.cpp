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
    void expectReplayControls(bool enabled) {
        for (FormControl* control : std::initializer_list<FormControl*>{
                 &form.replayPage.play, &form.replayPage.stop, &form.replayPage.loop,
                 &form.replayPage.bar, &form.replayPage.lock})
            EXPECT_EQ(control->enabled(), enabled) << control->name();
    }
    [[nodiscard]] int newest() { return sim().c_TraceBufferMax; }
};

TEST_F(StripTest, TwoClicksOnStartComeBack) {
    form.pages.wind.click();
    for (const bool flies : {true, false}) {
        start();
        EXPECT_EQ(form.flight.flies(), flies);
        EXPECT_TRUE(form.pages.replay.chosen());
        EXPECT_EQ(form.modePanel.text(), flies ? "Training [M]ode" : "Pause [M]ode");
        expectReplayControls(!flies);
        EXPECT_EQ(form.fileMenu.newSession.enabled(), !flies);
        form.pages.chart.click();
    }
}

TEST_F(StripTest, APauseShowsTheNewestSampleAndGoesOnFromThere) {
    record(40);
    EXPECT_EQ(told(form.replayPage.bar.max(), form.replayPage.bar), told(newest(), newest()));
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
    EXPECT_TRUE(form.replay.runs());
    EXPECT_FALSE(form.startButton.enabled());
    for (const int sample : {2, 3}) {
        replay(4);
        EXPECT_EQ(form.replayPage.bar.value(), sample);
    }
    replay(4 * newest());
    EXPECT_FALSE(form.replay.runs());
    EXPECT_EQ(told(form.replayPage.bar, sim().c_RepeatValue, form.replayPage.lock),
              told(newest(), newest(), 1));
    EXPECT_TRUE(form.replayPage.stop.chosen() && form.startButton.enabled());
    form.replayPage.loop.click();
    form.replayPage.play.click(); // once more from the beginning, over and over
    for (int round = 0; round < 2; ++round) {
        replay(1);
        EXPECT_EQ(form.replayPage.bar.value(), 1);
        replay(4 * newest() - 1);
    }
    EXPECT_TRUE(form.replay.runs());
    start(); // rests while the replay runs
    EXPECT_FALSE(form.flight.flies());
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
    setCourse(form.inst2, 77);
    form.coupling.setHeadingBug(30);
    record(20);
    setCourse(form.inst2, 10);
    form.inst2TypeList.pick(adf - 1);
    form.coupling.setHeadingBug(200);
    form.APControlFace1.c_TAS = 200.0;
    form.APControlFace1.c_ALT = 9000.0;
    couple();
    EXPECT_EQ(sim().c_Altitude, 6000) << "pinned, whatever the autopilot says";
    scrollTo(5);
    const UserControl_1& dial = form.inst2.instrument;
    EXPECT_EQ(told(form.replayPage.lock, form.inst2.type, dial.Display, form.inst2.obs), "1 3 3 77")
        << "looking at a flight locks it";
    EXPECT_EQ(form.inst2TypeList.index(), vor - 1);
    EXPECT_EQ(told(dial.c_HDGbug, form.UserControl_DG.c_HDGbug, form.APControlFace1.c_HDG,
                   form.APControlFace1.c_TAS),
              "30 30 30 120");
    EXPECT_EQ(sim().recording.at(5).traceInst2, vor);
    form.replayPage.lock.click(); // the knob goes on from the course that is shown
    setCourse(form.inst2, 78);
    EXPECT_EQ(form.inst2.obs, 78);
}

TEST_F(StripTest, AnUnlockedReplayLeavesThePanelAndWritesItOverTheRecording) {
    form.inst2TypeList.pick(vor - 1);
    form.coupling.setHeadingBug(30);
    record(20);
    scrollTo(8);
    form.replayPage.lock.click();
    form.inst2TypeList.pick(hsi - 1);
    form.coupling.setHeadingBug(200);
    couple();
    scrollTo(5);
    EXPECT_EQ(told(form.inst2.type, form.inst2.instrument.c_HDGbug, form.UserControl_DG.c_HDGbug,
                   sim().c_HDGbug),
              "4 200 200 200");
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
    EXPECT_EQ(told(form.replayPage.bar, sim().c_RepeatValue, sim().c_HscrollRepeatValue), "3 3 0");
    start();
    sim().c_HscrollRepeatValue = 2;
    fly(8);
    EXPECT_TRUE(form.flight.flies());
    EXPECT_EQ(newest(), 3 + 6);
}

TEST_F(StripTest, BothHideBoxesHideAllThatGivesThePlaceAway) {
    form.pressKey('V');
    record(12);
    EXPECT_EQ(sim().c_SpeedVectorEN, 1);
    form.chartPage.hide.click();
    EXPECT_EQ(told(form.replayPage.hide, form.hidePanel, form.vectorsPanel),
              "1 [H]ide ON [V]-Vectors OFF");
    EXPECT_EQ(sim().c_AirplaneEN + sim().c_TraceEN + sim().c_SpeedVectorEN + sim().c_TraceAheadEN,
              0);
    scrollTo(4);
    EXPECT_TRUE(sim().picture.trace.all().empty());
    form.replayPage.hide.click();
    EXPECT_EQ(told(form.chartPage.hide, sim().c_SpeedVectorEN, sim().c_TraceEN, form.vectorsPanel),
              "0 1 1 [V]-Vectors Type1");
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
        return told(form.flight.flies(), form.replay.runs());
    };
    EXPECT_EQ(press("M"), "1 0");
    EXPECT_EQ(press("P"), "1 0") << "no replay in flight";
    EXPECT_EQ(press("MP"), "0 1");
    EXPECT_EQ(press("P"), "0 0");
    EXPECT_EQ(press("PM"), "1 0") << "a replay gives way to a flight";
    press("M");
    press("HT");
    EXPECT_EQ(told(form.hidePanel, form.tracePanel), "[H]ide ON [T]race OFF");
    press("HVV");
    EXPECT_EQ(told(form.vectorsPanel, sim().c_TraceAheadEN, sim().c_SpeedVectorEN),
              "[V]-Vectors Type2 1 0");
    press("VR");
    EXPECT_EQ(told(form.vectorsPanel, sim().c_NAVRadBorder == on), "[V]-Vectors OFF 1");
    for (const char* wind : {"[W]ind manual", "[W]ind random", "[W]ind OFF"}) {
        press("W");
        EXPECT_EQ(form.windPanel.text(), wind);
    }
    EXPECT_FALSE(form.pressKey('X'));
}

TEST_F(StripTest, TheWindPageTellsWhereTheWindComesFrom) {
    const auto readout = [this] {
        couple();
        return form.windPage.readout.text();
    };
    EXPECT_EQ(form.windPage.readout.text(), "hidden");
    form.windPage.show.click();
    form.windPage.random.click();
    const std::string first = readout();
    EXPECT_EQ(first, sim().c_wind.get());
    for (int i = 0; i < 20 && readout() == first; ++i) // another click draws anew
        form.windPage.random.click();
    EXPECT_NE(readout(), first);
    form.windPage.none.click();
    EXPECT_EQ(readout(), "0/0");
    form.windDesk.setManual(270, 20);
    EXPECT_EQ(readout(), "270/20");
    EXPECT_TRUE(form.windPage.manual.chosen());
    form.display.setNorthUp(false);
    form.windPage.draw.click();
    sim().mouse.down(ChartButton::left, {1000, 1000});
    sim().mouse.move({1000, 2000});
    sim().mouse.up();
    EXPECT_EQ(readout(), "0/20");
    record(8); // recorded, taken away, and brought back by the replay
    form.windPage.none.click();
    scrollTo(3);
    EXPECT_EQ(told(form.windPanel, sim().c_wind), "[W]ind manual 0/20");
}

TEST_F(StripTest, CommentsAreWrittenShownAndSteppedThrough) {
    const CommentPanel& panel = form.commentPanel;
    start();
    fly(8);
    form.commentPanel.text.type("Intercept QDM 120");
    form.commentPanel.startStop.click();
    fly(8);
    EXPECT_EQ(told(panel.comment.visible(), panel.comment), "1 Intercept QDM 120");
    form.commentPanel.startStop.click();
    EXPECT_EQ(told(panel.text, panel.number), " 2");
    fly(4);
    EXPECT_FALSE(panel.comment.visible());
    start();
    form.commentPanel.previous.click();
    EXPECT_EQ(told(panel.text, panel.number), "Intercept QDM 120 1");
    for (int i = 0; i < 150; ++i)
        form.commentPanel.next.click();
    EXPECT_EQ(panel.number.text(), "101");
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
    EXPECT_EQ(told(world.boxes.size(), form.commentPanel.text, form.flight.flies()),
              "1 one too many 1");
}

TEST_F(StripTest, EditingAChartAsksForMarkedCommentsAndRestsTheReplay) {
    form.stationPage.edit.click();
    form.stationPage.edit.click();
    start();
    form.commentPanel.startStop.click();
    fly(8);
    start();
    EXPECT_TRUE(world.asked.empty()) << "no comment, no question";
    for (const bool answer : {false, true}) {
        world.answer = answer;
        form.stationPage.edit.click();
        EXPECT_EQ(told(form.stationPage.edit, sim().c_mapedit, sim().hasCommentMarks()),
                  answer ? "1 1 0" : "0 0 1");
    }
    EXPECT_EQ(world.asked.size(), 2U);
    couple();
    expectReplayControls(false);
    EXPECT_FALSE(form.pressKey('P') && form.replay.runs());
    form.stationPage.edit.click();
    expectReplayControls(true);
}

TEST_F(StripTest, APracticePanelTakesItsStates) {
    const auto expectPanel = [this](const char* visibleKeepRecallRecallable) {
        EXPECT_EQ(told(form.practicePanel.frame.visible(), form.practicePanel.keep.chosen(),
                       form.practicePanel.recall.chosen(), form.practicePanel.recall.enabled()),
                  visibleKeepRecallRecallable);
    };
    EXPECT_FALSE(form.practicePanel.frame.visible());
    sim().c_TrackDelta = 1;
    expectPanel("1 1 0 0");
    EXPECT_EQ(sim().c_TrackDelta, 0);
    for (const auto recalls : std::initializer_list<std::int16_t>{3, 9}) {
        sim().c_TrackDelta = recalls;
        expectPanel("1 0 1 1");
    }
    sim().c_TrackDelta = 0;
    EXPECT_FALSE(form.practicePanel.frame.visible());
}

class PracticeFlight : public TrainerWithFiles {
  protected:
    /// Flies the practice, or on, and tells whether it still flies in the end.
    bool flies(int seconds) {
        form->startButton.click();
        for (int i = 0; i < 3 * seconds; ++i) {
            form->simulationTimer();
            couple();
        }
        return form->flight.flies();
    }
};

TEST_F(PracticeFlight, RestsWhereItsExampleEndsAndOnceWhereItIsLost) {
    const std::string example = "default/sessions/e-adf practise 01.ts";
    fly(40);
    saveAs(example);
    form->exerciseMenu.adfPractice[0]->click();
    couple();
    EXPECT_FALSE(flies(50));
    EXPECT_EQ(sim().recording.sampleIndex(), sim().reference.size() + 1);
    ASSERT_EQ(world.boxes.size(), 1U);
    EXPECT_THAT(world.boxes[0], testing::HasSubstr("example ends"));
    EXPECT_TRUE(form->debrief.isOpen());
    form->debriefControls.close.click();
    EXPECT_TRUE(flies(60)); // on, if he wants to
    form->startButton.click();
    form->exerciseMenu.adfPractice[0]->click();
    couple();
    ReferenceTrack far;
    for (int i = 0; i < 60; ++i)
        far.append({50, 13});
    sim().reference = far;
    EXPECT_FALSE(flies(5));
    ASSERT_EQ(world.boxes.size(), 2U);
    EXPECT_THAT(world.boxes[1], testing::HasSubstr("3 NM"));
    EXPECT_TRUE(flies(20));
    form->startButton.click();
    load(example); // to be looked at, not practised
    EXPECT_TRUE(flies(60));
    EXPECT_EQ(world.boxes.size(), 2U);
}

TEST_F(StripTest, ChartAndStationsAnswerTheirPages) {
    const std::string first = told(1, sim().c_MAPscale, toPlain(sim().view.mapCenter).latitude);
    form.display.stepScale(-1);
    form.display.setNorthUp(false);
    form.chartPage.reset.click();
    EXPECT_EQ(told(sim().c_MAPnorthUP, sim().c_MAPscale, toPlain(sim().view.mapCenter).latitude),
              first);
    for (const Station& station : sim().stations) {
        EXPECT_GT(std::min(station.place.wide.x, station.place.wide.y), 500);
        EXPECT_LT(std::max(station.place.wide.x, station.place.wide.y), 6300);
    }
    record(60);
    form.chartPage.centre.click();
    EXPECT_EQ(sim().aircraft.place.point, (ChartPoint{3405, 3405}));
    for (CheckBox* box : {&form.stationPage.vor1, &form.stationPage.dme1})
        box->click();
    EXPECT_FALSE(inSlot(sim().stations, Slot::vor1).buttonDown);
    sim().slot(Slot::ndb2).enabled = off; // as a chart would
    couple();
    EXPECT_EQ(form.stationPage.ndb2.value(), 0);
}

} // namespace
} // namespace tarnel
