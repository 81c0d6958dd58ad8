#include "trainer_fixture.h"

#include <array>
#include <set>
#include <type_traits>

namespace tarnel {
namespace {

using testing::HasSubstr;

using Autopilot = TrainerTest;
using HeadingBug = TrainerTest;
using PractiseArea = TrainerTest;
using RunTimeErrors = TrainerTest;
using Stopwatch = TrainerTest;
using Strip = TrainerTest;
using Panel = TrainerTest;

TEST_F(HeadingBug, EverySourceReachesAllOthers) {
    const auto bugs = [this] {
        return std::vector<double>{
            form.APControlFace1.c_HDG, double(form.inst2.instrument.c_HDGbug),
            double(form.inst3.instrument.c_HDGbug), double(form.UserControl_DG.c_HDGbug),
            double(form.UserControl11.c_HDGbug)};
    };
    form.floatingGyroBox.click();
    int expected = 0;
    const auto expectAll = [&](const char* source) {
        couple(1);
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

std::int16_t another(setting::Kind, std::int16_t type) {
    return type == vor ? hsi : vor;
}
std::int16_t another(setting::Frequency, std::int16_t place) {
    return place == 0 ? 1 : 0;
}
template <class OneOrTwo>
std::int16_t another(OneOrTwo, std::int16_t choice) requires(OneOrTwo::withLock) {
    return choice == 1 ? 2 : 1;
}
template <class Figure, class Value>
Value another(Figure, Value value) {
    return static_cast<Value>(value + 50);
}

/// Whatever the panel shows goes into the simulation at each tick; a kind goes with its list.
template <class Kind>
constexpr bool isTaken = !std::is_same_v<Kind, setting::Kind>;

TEST(RecordedSettings, GoFromALockedReplayToThePanelAndFromThereIntoTheSimulation) {
    Trainer trainer;
    UserControl2& sim = trainer.form.UserControl11;
    trainer.form.startButton.click();
    trainer.fly(10);
    trainer.form.startButton.click();
    Sample& wanted = sim.recording.edit(3);
#define SETTING(name, type, rule, kind, property, control)                                         \
    wanted.name = another(setting::kind(), wanted.name);
#include "core/sample_rows.def"
    trainer.form.replayPage.bar.scrollTo(3);
    trainer.couple();
#define SETTING(name, type, rule, kind, property, control)                                         \
    EXPECT_EQ(sim.property, wanted.name);                                                          \
    if (isTaken<setting::kind>)                                                                    \
        sim.property.publish(0);
#include "core/sample_rows.def"
    trainer.couple();
#define SETTING(name, type, rule, kind, property, control) EXPECT_EQ(sim.property, wanted.name);
#include "core/sample_rows.def"
    sim.markFreshStart();
    const Sample& recorded = sim.recording.at(1);
#define SETTING(name, type, rule, kind, property, control) EXPECT_EQ(recorded.name, wanted.name);
#include "core/sample_rows.def"
}

class DmeTest : public TrainerTest {
  protected:
    /// The frequency, the distance and the speed of one station, after a single coupling.
    void expectStation(Slot slot, const char* when) {
        couple(1);
        const StationProperties& station = sim().slot(slot);
        std::string frequency = station.frequency;
        frequency.erase(frequency.find('.'), 1);
        EXPECT_EQ(digitsOf(dme.frequency), frequency) << when;
        EXPECT_EQ(dme.c_DMEnm, std::lround(station.dme * 10)) << when;
        const Slot speed = slot == Slot::vor1 ? Slot::vor1 : Slot::localizer;
        EXPECT_EQ(dme.c_DMEkt, sim().slot(speed).dmeGroundSpeed) << when;
    }

    DMEControlFace& dme = form.DMEControlFace1;
};

TEST_F(DmeTest, FrequencyAndDistanceAreOfOneStation) {
    placeAt(48.05, 11.5, 20);
    start();
    fly(20);
    std::set<std::int16_t> speeds;
    for (const Slot slot : {Slot::vor1, Slot::vor2, Slot::localizer})
        speeds.insert(sim().slot(slot).dmeGroundSpeed);
    ASSERT_EQ(speeds.size(), 3);
    expectStation(Slot::vor1, "own");
    dme.stepUp();
    expectStation(Slot::vor2, "own, stepped");
    dme.selectMode(DmeMode::r1);
    expectStation(Slot::vor1, "R1");
    form.NAVControlFace2.c_SetFreq = 2;
    dme.selectMode(DmeMode::r2);
    expectStation(Slot::localizer, "R2");
    fly(20);
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
    placeAt(50.2, 11.8, 0);
    EXPECT_EQ(digitsOf(dme.distance), std::to_string(int(sim().slot(Slot::vor1).dme)));
    placeAt(70, 11.8, 0);
    EXPECT_EQ(digitsOf(dme.distance) + digitsOf(dme.speed), "------") << "more than three digits";
    sim().slot(Slot::vor1).dmeEnabled = off;
    couple(1);
    EXPECT_EQ(digitsOf(dme.distance) + digitsOf(dme.speed), "000000");
    EXPECT_TRUE(world.boxes.empty());
}

TEST_F(Autopilot, TakesItsHighestAltitudeWithoutAnError) {
    form.APControlFace1.stepALT(400);
    couple();
    EXPECT_EQ(told(form.APControlFace1.c_ALT, sim().c_Altitude), "42000 6000") << "pinned";
    form.chartPage.vectors.set(2); // turns ahead
    couple();
    const auto drawn = sim().picture.surface.revision();
    couple();
    EXPECT_EQ(sim().picture.surface.revision(), drawn) << "for an altitude nothing is drawn";
    EXPECT_TRUE(world.boxes.empty());
}

TEST_F(PractiseArea, StopsTheFlightOnceWithItsMessage) {
    placeAt(48.17, 13.2, 90);
    start();
    fly(600);
    ASSERT_EQ(world.boxes.size(), 1);
    EXPECT_THAT(world.boxes[0], HasSubstr("You are outside of the practise Area."));
    EXPECT_FALSE(form.flight.flies());
    EXPECT_EQ(form.modePanel.text(), "Pause [M]ode");
    EXPECT_NEAR(sim().slot(Slot::vor2).dme, 80.1, 0.11);
}

TEST_F(RunTimeErrors, PauseTheFlightAndAreToldOnce) {
    start();
    sim().c_LocCrs1 = 1e9;
    couple(5);
    ASSERT_EQ(world.boxes.size(), 1);
    EXPECT_THAT(world.boxes[0], HasSubstr("6"));
    EXPECT_FALSE(form.flight.flies());
    sim().c_LocCrs1 = 83;
    start();
    fly(3);
    EXPECT_TRUE(form.flight.flies());
    EXPECT_EQ(world.boxes.size(), 1);
}

TEST_F(Stopwatch, RunsStopsAndResetsAtOnceWhenPaused) {
    form.stopwatchStartButton.click();
    start();
    for (const double seconds : {65.5, 10.0}) {
        fly(seconds);
        EXPECT_EQ(form.tvsmtimer1.minsec.get(), "01.05");
        if (seconds > 60)
            form.stopwatchStartButton.click();
    }
    form.startButton.click();
    form.stopwatchResetButton.click();
    couple(1);
    EXPECT_EQ(told(form.tvsmtimer1.minsec, form.flightTimePanel), "00.00 0h1min15sec");
}

TEST_F(Strip, AnAbandonedTrackStaysAway) {
    start();
    fly(120);
    form.startButton.click();
    EXPECT_FALSE(sim().picture.trace.all().empty());
    sim().placeAircraft(ChartPoint{1000, 1000});
    form.display.stepScale(1);
    EXPECT_TRUE(sim().picture.trace.all().empty());
}

TEST_F(Strip, LockTakesTheKnobsAndDialsButNotTheAutopilot) {
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
    couple();
    EXPECT_EQ(form.inst3.obsHsi, 0);
    EXPECT_EQ(form.APControlFace1.c_HDG, 5);
    form.replayPage.lock.click();
    form.NAVControlFace1.stepUp();
    EXPECT_EQ(form.NAVControlFace1.c_SetFreq, 1);
}

TEST_F(Panel, OneInstrumentHoldsTheObsOfAVor) {
    const auto holder = [&] {
        couple(1);
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

TEST_F(Panel, OnlyAnInstrumentWithACourseHasTheButtonOfAChannel) {
    for (int kind = adf; kind <= dg; ++kind) {
        form.inst2TypeList.pick(kind - 1);
        couple();
        EXPECT_EQ(form.inst2ChannelButton.visible(), kind == vor || kind == hsi) << kind;
    }
}

TEST_F(Panel, LargeDisplayReloadsItsPictureAndShrinksTheChart) {
    form.inst3Large.click();
    EXPECT_THAT(form.inst3.instrument.picture.Image1.file, HasSubstr("g.jpg"));
    EXPECT_LT(sim().c_CenterTwips, 3405);
    form.inst3Small.click();
    EXPECT_EQ(sim().c_CenterTwips, 3405);
}

} // namespace
} // namespace tarnel
