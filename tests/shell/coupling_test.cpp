#include "trainer_fixture.h"

#include <gmock/gmock.h>

#include <array>
#include <set>

namespace tarnel {
namespace {

using testing::HasSubstr;

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
    // Of several at once the first in this order wins.
    const std::array<UserControl_1*, 3> dials{&form.inst3.instrument, &form.inst2.instrument,
                                              &form.UserControl_DG};
    for (int winner = 3; winner >= 0; --winner) {
        for (int source = winner; source <= 3; ++source)
            if (source == 0)
                form.APControlFace1.stepHeading(5);
            else
                dials[source - 1]->mouse.stepKnob(InstrumentArea::headingBugKnob, 10 * source);
        expected += winner == 0 ? 5 : 10 * winner;
        expectAll("the first of several");
    }
}

std::string digitsOf(const DigitReadout& readout) {
    std::string text;
    for (const std::int16_t picture : readout.pictures())
        text += picture == DigitReadout::dashPicture ? '-' : static_cast<char>('0' + picture - 1);
    return text;
}

class DmeTest : public testing::Test {
  protected:
    /// The frequency, the distance and the speed of one station, after a single coupling.
    void expectStation(Slot slot, const char* when) {
        trainer.couple(1);
        const StationProperties& station = trainer.sim().slot(slot);
        std::string frequency = station.frequency;
        frequency.erase(frequency.find('.'), 1);
        EXPECT_EQ(digitsOf(dme.frequency), frequency) << when;
        EXPECT_EQ(dme.c_DMEnm, std::lround(station.dme * 10)) << when;
        const Slot speed = slot == Slot::vor1 ? Slot::vor1 : Slot::localizer;
        EXPECT_EQ(dme.c_DMEkt, trainer.sim().slot(speed).dmeGroundSpeed) << when;
    }

    Trainer trainer;
    Form1& form = trainer.form;
    DMEControlFace& dme = form.DMEControlFace1;
};

TEST_F(DmeTest, FrequencyAndDistanceAreOfOneStation) {
    trainer.placeAt(48.05, 11.5, 20);
    trainer.start();
    trainer.fly(20);
    std::set<std::int16_t> speeds;
    for (const Slot slot : {Slot::vor1, Slot::vor2, Slot::localizer})
        speeds.insert(trainer.sim().slot(slot).dmeGroundSpeed);
    ASSERT_EQ(speeds.size(), 3);
    expectStation(Slot::vor1, "own");
    dme.stepUp();
    expectStation(Slot::vor2, "own, stepped");
    dme.selectMode(DmeMode::r1);
    expectStation(Slot::vor1, "R1");
    form.NAVControlFace2.c_SetFreq = 2;
    dme.selectMode(DmeMode::r2);
    expectStation(Slot::localizer, "R2");
    trainer.fly(20);
    form.startButton.click();

    // A locked replay shows what was recorded, wherever the selector stands.
    form.NAVControlFace2.c_SetFreq = 0;
    form.replayPage.lock.set(1);
    for (const DmeMode mode : {DmeMode::r2, DmeMode::freq, DmeMode::r1}) {
        dme.selectMode(mode);
        form.replayPage.bar.scrollTo(3);
        expectStation(Slot::vor1, "early sample");
        form.replayPage.bar.scrollTo(25);
        expectStation(Slot::localizer, "late sample");
        expectStation(Slot::localizer, "and stays");
    }
    form.replayPage.lock.set(0);
    expectStation(Slot::vor1, "R1 again, unlocked");
}

TEST_F(DmeTest, ShowsWholeMilesFarOutAndZeroWhenSwitchedOff) {
    trainer.placeAt(50.2, 11.8, 0);
    EXPECT_EQ(digitsOf(dme.distance), std::to_string(int(trainer.sim().slot(Slot::vor1).dme)));
    trainer.placeAt(70, 11.8, 0);
    EXPECT_EQ(digitsOf(dme.distance) + digitsOf(dme.speed), "------") << "more than three digits";
    trainer.sim().slot(Slot::vor1).dmeEnabled = off;
    trainer.couple(1);
    EXPECT_EQ(digitsOf(dme.distance) + digitsOf(dme.speed), "000000");
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
    const std::initializer_list<RadioFace*> radios{&form.NAVControlFace1, &form.NAVControlFace2,
                                                   &form.ADFControlFace1, &form.DMEControlFace1};
    for (RadioFace* radio : radios) {
        const auto before = radio->c_SetFreq.get();
        radio->stepUp();
        EXPECT_EQ(radio->c_SetFreq, before);
    }
    form.inst3.instrument.mouse.stepKnob(InstrumentArea::obsKnob, 5);
    form.APControlFace1.stepHeading(5);
    trainer.couple();
    EXPECT_EQ(form.inst3.obsHsi, 0);
    EXPECT_EQ(form.APControlFace1.c_HDG, 5);
    form.replayPage.lock.click();
    form.NAVControlFace1.stepUp();
    EXPECT_EQ(form.NAVControlFace1.c_SetFreq, 1);
}

TEST(Strip, EachRateHasItsOwnPace) {
    Trainer trainer;
    Form1& form = trainer.form;
    for (const auto& [rate, milliseconds] :
         std::initializer_list<std::pair<OptionButton*, int>>{{&form.rateHalf, 666},
                                                              {&form.rateReal, 333},
                                                              {&form.rateDouble, 166},
                                                              {&form.rateQuadruple, 83}}) {
        rate->click();
        EXPECT_EQ(trainer.sim().c_TimerSIMrate, milliseconds);
    }
}

TEST(Panel, OneInstrumentHoldsTheObsOfAVor) {
    Trainer trainer;
    Form1& form = trainer.form;
    const auto holder = [&] {
        trainer.couple(1);
        return std::pair(form.inst2ChannelButton.caption() == Text::channelObs,
                         form.inst3ChannelButton.caption() == Text::channelObs);
    };
    EXPECT_EQ(holder(), std::pair(false, true));
    form.inst2TypeList.select(vor - 1);
    EXPECT_EQ(holder(), std::pair(true, false));
    form.inst3ChannelButton.click();
    EXPECT_EQ(form.inst3.channels.hsi, 1) << "the first click takes the OBS, not the next station";
    EXPECT_EQ(holder(), std::pair(false, true));
    form.inst3ChannelButton.click();
    EXPECT_EQ(form.inst3.channels.hsi, 2);
    form.inst2ChannelButton.click();
    EXPECT_EQ(holder(), std::pair(true, true)) << "each of its own VOR";
    form.inst2ChannelButton.click();
    EXPECT_EQ(holder(), std::pair(true, false)) << "VOR 2 is taken over, too";
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
