#include "core/rounding.h"
#include "engine/simulation_fixture.h"
#include "support/told.h"

#include <gmock/gmock.h>

namespace tarnel {
namespace {

/// What a student could read off at one moment.
struct Moment {
    GeoPosition position;
    double bearing = 0;
    std::string told; ///< heading, speed, times and wind
};

class ReplayTest : public SimulationTest {
  protected:
    /// A flight of turns and speeds; `flown` keeps the moment of each sample, `steps` the place
    /// after each tick.
    void fly(int samples) {
        sim.c_Timer_on_off = 1;
        sim.setWind({270, 20});
        start(120, 10);
        flown.assign(1, Moment{});
        while (sim.recording.sampleIndex() < samples) {
            const GeoPosition before = place();
            const std::int16_t index = sim.recording.sampleIndex();
            tick(1);
            steps.push_back(place());
            if (sim.recording.sampleIndex() == index)
                continue;
            flown.resize(static_cast<std::size_t>(sim.recording.sampleIndex()) + 1);
            flown.back() = moment();
            flown.back().position = before; // a sample is taken before its tick flies on
            if (steady)
                continue;
            sim.Turn_Rate = toInt16(3 - index % 7);
            sim.c_TAS = toInt16(100 + index);
        }
        sim.c_TimerEN = 0;
    }
    [[nodiscard]] Moment moment() const {
        return {place(), station(Slot::vor1).radial,
                sim.c_HDG.text() + " " + sim.c_TAS.text() + " " + sim.c_ApSeconds2.text() + " " +
                    sim.c_ApSeconds.text() + " " + sim.c_wind.get()};
    }

    bool steady = false; ///< speed and turn stay as they are
    std::vector<Moment> flown;
    std::vector<GeoPosition> steps; ///< by tick, from 0
};

TEST_F(ReplayTest, ShowsEachSampleAsItWasFlown) {
    fly(60);
    for (const int i : {2, 3, 17, 59, 60, 31}) {
        sim.c_RepeatValue = toInt16(i);
        const Moment shown = moment();
        const Moment& then = flown[static_cast<std::size_t>(i)];
        EXPECT_NEAR(shown.position.latitude, then.position.latitude, 1e-9) << i;
        EXPECT_NEAR(shown.position.longitude, then.position.longitude, 1e-9) << i;
        EXPECT_EQ(shown.told, then.told) << i;
        EXPECT_NEAR(shown.bearing, then.bearing, 1) << i; // that of one tick later
        EXPECT_EQ(sim.presentSampleIndex(), i);
    }
    EXPECT_EQ(sim.c_TraceBufferMax, 60); // nothing is lost by looking
}

TEST_F(ReplayTest, ResumesAtAnySampleAndKeepsWhatWasBefore) {
    fly(50);
    const Sample kept = sim.recording.at(20);
    sim.recording.edit(40).traceComment = 3;
    sim.c_RepeatValue = 20;
    sim.c_TimerEN = 1;
    EXPECT_EQ(sim.c_TraceBufferMax, 20);
    EXPECT_EQ(sim.recording.at(21).traceLat, 45) << "what follows is gone";
    EXPECT_EQ(sim.recording.at(6000).traceFlightMinutes, 0);
    EXPECT_EQ(sim.recording.at(40).traceComment, noComment);
    EXPECT_EQ(sim.recording.at(20), kept);
    const FlightClock& clock = sim.clock;
    EXPECT_EQ(tarnel::told(clock.flightMinutes, static_cast<int>(clock.flightSeconds),
                           clock.stopwatchMinutes, static_cast<int>(clock.stopwatchSeconds)),
              "0 24 0 24");
    EXPECT_FALSE(sim.inReplay());
    const GeoPosition resumed = place();
    for (const int samples : {21, 22}) { // cut once: a stop and a start go on
        tick(4);
        EXPECT_EQ(sim.c_TraceBufferMax, samples);
        EXPECT_LT(milesBetween(resumed, place()), 0.6);
        sim.c_TimerEN = 0;
        sim.c_TimerEN = 1;
    }
    sim.c_TimerEN = 0;
    sim.c_RepeatValue = 12;
    sim.turnAircraft(90);
    sim.c_TimerEN = 1;
    EXPECT_EQ(sim.c_HDG, 90) << "a heading drawn on a sample is flown";
}

TEST_F(ReplayTest, AStartBetweenSamplesIsOneFromTheSampleAndKeepsAnOpenComment) {
    fly(20);
    sim.c_RepeatValue = 12;
    sim.startComment("open");
    for (const int quarter : {0, 2, 3}) {
        sim.c_ReplayInterpolation = toInt16(quarter);
        sim.c_RepeatValue = 14;
    }
    EXPECT_NE(sim.c_HDG, sim.recording.at(14).traceHeading);
    sim.c_TimerEN = 1;
    EXPECT_EQ(sim.c_HDG, sim.recording.at(14).traceHeading);
    EXPECT_EQ(sim.recording.at(13).traceComment, sim.comments.selectedCommentIndex);
    EXPECT_NE(sim.recording.at(13).traceComment, noComment);
}

TEST_F(ReplayTest, RefusesSamplesThatCanNotBe) {
    fly(10);
    sim.c_RepeatValue = 4;
    const GeoPosition there = place();
    sim.c_RepeatValue = 0;
    sim.c_RepeatValue = -7;
    EXPECT_THROW(sim.c_RepeatValue = 6001, RunTimeError);
    EXPECT_EQ(sim.c_RepeatValue, 4);
    EXPECT_EQ(place(), there);
    sim.c_TimerEN = 1;
    tick(2);
    const GeoPosition flying = place();
    sim.c_RepeatValue = 2; // not while it flies
    EXPECT_EQ(place(), flying);
    sim.c_TimerEN = 0;
    sim.placeAircraft(ChartPoint{3000, 3000});
    const GeoPosition placed = place();
    sim.c_TimerEN = 1;
    tick(1);
    sim.c_TimerEN = 0;
    EXPECT_EQ(sim.c_TraceBufferMax, 1) << "stopped before its first sample it has one";
    sim.c_RepeatValue = 10; // beyond the flight
    EXPECT_LT(milesBetween(placed, place()), 0.1);
}

TEST_F(ReplayTest, ALockRestoresSettingsAndWithoutItTheyAreWrittenOver) {
    sim.c_NAV1freq = 2;
    fly(10);
    sim.c_NAV1freq = 1;
    sim.c_replayInstLock = 1;
    sim.c_RepeatValue = 5;
    EXPECT_EQ(sim.c_NAV1freq, 2);
    EXPECT_EQ(sim.c_replayActive, 1);
    sim.c_replayInstLock = 0;
    sim.c_NAV1freq = 1;
    sim.c_RepeatValue = 6;
    EXPECT_EQ(sim.recording.at(6).traceNAV1freq, 1);
    EXPECT_EQ(sim.recording.at(5).traceNAV1freq, 2);
}

/// A full step and the three quarters behind it fly the four ticks of the flight again.
TEST_F(ReplayTest, InterpolationFliesOnWithoutAJumpInBothViews) {
    steady = true;
    sim.Turn_Rate = 2;
    fly(40);
    for (const int northUp : {1, 0}) {
        sim.c_MAPnorthUP = toInt16(northUp);
        std::size_t step = 2; // sample 2 is taken in the third tick, before it flies on
        for (std::int16_t i = 2; i <= 40; ++i) {
            for (const int quarter : {0, 2, 3, 3}) {
                sim.c_ReplayInterpolation = toInt16(quarter);
                sim.c_RepeatValue = i;
                if (step <= steps.size()) {
                    const GeoPosition& then = steps[step++ - 1];
                    EXPECT_NEAR(place().latitude, then.latitude, 1e-6) << i << " " << quarter;
                    EXPECT_NEAR(place().longitude, then.longitude, 1e-6) << i << " " << quarter;
                }
                if (northUp == 0) {
                    EXPECT_EQ(sim.aircraft.place.point, (ChartPoint{3405, 3405}));
                }
            }
        }
    }
    sim.c_ReplayInterpolation = 1; // from the sample, wherever it has flown to
    sim.c_RepeatValue = 40;
    EXPECT_LT(milesBetween(flown[40].position, place()), 0.015);
}

TEST_F(ReplayTest, StationsAndLocalizerStandAsTheyDid) {
    sim.c_LocCrs1 = 83;
    fly(5);
    const GeoPosition then = toPlain(sim.stations[0].position);
    sim.stations[0].position = toSplit({50, 12});
    sim.c_LocCrs1 = 10;
    sim.c_RepeatValue = 3;
    EXPECT_NEAR(toPlain(sim.stations[0].position).latitude, then.latitude, 1e-9);
    EXPECT_EQ(sim.c_LocCrs1, 83);
}

TEST_F(ReplayTest, ATurnedChartKeepsItsRadialOnTheStation) {
    sim.c_obsI2 = 90;
    sim.c_NAVRadI2 = 1;
    fly(40);
    sim.c_MAPnorthUP = 0;
    sim.c_replayInstLock = 1;
    double least = 360;
    for (const int sample : {38, 20, 30}) {
        sim.c_RepeatValue = toInt16(sample);
        least = std::min(least, std::abs(std::remainder(sim.c_HDG, 180)));
        EXPECT_EQ(sim.c_obsI2, 90); // from north, until the panel follows
        const double drawn = sim.picture.radialsI2.angle - (90 - sim.c_HDG);
        EXPECT_NEAR(std::remainder(drawn, 180), 0, 0.01) << sim.c_HDG;
    }
    EXPECT_GT(least, 5) << "the chart is turned";
}

TEST_F(ReplayTest, TheTraceIsThatOfTheWholeFlightAndHidesWithTheAircraft) {
    sim.c_TraceEN = 1;
    fly(40);
    sim.c_RepeatValue = 8;
    EXPECT_EQ(sim.picture.trace.all().size(), 5U); // one in eight
    sim.c_AirplaneEN = 0;
    for (const auto& redraw : std::initializer_list<std::function<void()>>{
             [this] { sim.c_RepeatValue = 9; }, [this] { sim.c_MAPscale = 500; },
             [this] { sim.c_MAPnorthUP = 0; }, [this] { sim.c_CenterTwips = 3000; }}) {
        redraw();
        EXPECT_TRUE(sim.picture.trace.all().empty());
    }
    sim.c_AirplaneEN = 1;
    EXPECT_EQ(sim.picture.trace.all().size(), 10U);
}

TEST_F(ReplayTest, WhatEndsAFlightLeavesNothingOfIt) {
    sim.newSessionName = "new";
    for (const auto& end : std::initializer_list<std::function<void()>>{
             [this] { sim.c_NewSession = 1; }, [this] { sim.dropRecording(); },
             [this] {
                 sim.placeAircraft(ChartPoint{1000, 1000});
             }}) {
        fly(20);
        sim.startComment("text");
        sim.stopComment();
        sim.reference.append({49, 11});
        sim.c_SessionFileName = "old";
        sim.c_TraceEN = 1;
        sim.c_RepeatValue = 9;
        end();
        EXPECT_TRUE(sim.picture.trace.all().empty());
        EXPECT_TRUE(sim.reference.empty());
        sim.c_TAS = 120;
        sim.c_TimerEN = 1;
        tick(4);
        EXPECT_EQ(tarnel::told(sim.c_TraceBufferMax, sim.recording.sampleIndex(), sim.c_ApSeconds2,
                               sim.c_SessionFileName, sim.hasCommentMarks()),
                  "1 1 1 new 0");
        sim.c_TimerEN = 0;
    }
    sim.dropRecording();
    EXPECT_EQ(tarnel::told(sim.c_TraceBufferMax, sim.c_FlyEN), "0 0");
}

TEST_F(ReplayTest, ANewSessionIsInSight) {
    fly(30);
    const GeoPosition station1 = toPlain(sim.stations[0].position);
    sim.c_RepeatValue = 9;
    sim.c_NewSession = 1;
    const GeoPosition first = place();
    EXPECT_EQ(tarnel::told(sim.c_RepeatValue, sim.c_HDG, sim.c_wind), "1 0 0/0");
    EXPECT_EQ(toPlain(sim.stations[0].position), station1);
    EXPECT_EQ(sim.recording.at(1).traceLat, first.latitude);
    EXPECT_EQ(sim.recording.at(1).traceLon, first.longitude);
    sim.c_MAPnorthUP = 0;
    sim.c_NewSession = 1;
    EXPECT_LT(milesBetween(first, place()), 0.1);
    EXPECT_NEAR(sim.aircraft.place.wide.x, 3405, 15);
    EXPECT_NEAR(sim.aircraft.place.wide.y, 6310, 15); // near the lower edge
    for (const Station& station : sim.stations)
        EXPECT_LT(station.place.wide.y, 5500);
}

class ReferenceTest : public SimulationTest {};

TEST_F(ReferenceTest, LampsFollowTheDistance) {
    const auto lit = [](double miles) {
        std::string text;
        for (const Lamp lamp : referenceLamps(miles))
            text += ".gor"[static_cast<std::size_t>(lamp)];
        return text;
    };
    const std::pair<double, const char*> cases[] = {
        {0, "g........"},   {0.329, "g........"}, {0.33, ".g......."}, {0.66, "..g......"},
        {1, "...o....."},   {1.65, "....o...."},  {1.99, ".....o..."}, {2, "......r.."},
        {2.5, "......rr."}, {2.66, "......rrr"},  {99, "......rrr"}};
    for (const auto& [miles, lamps] : cases)
        EXPECT_EQ(lit(miles), lamps);
}

TEST_F(ReferenceTest, IsComparedAtTheSameSampleAndNeverOverwritten) {
    start(120, 0);
    tick(4);
    EXPECT_FALSE(sim.referenceReading.known);
    EXPECT_EQ(sim.c_PractiseStopFly, 1); // there is nothing to follow
    sim.c_TimerEN = 0;
    sim.markFreshStart();
    for (int i = 0; i < 3; ++i)
        sim.reference.append({place().latitude, 11 + 1.5 / 60 / std::cos(0.855)});
    sim.c_TimerEN = 1;
    EXPECT_EQ(sim.c_PractiseStopFly, 0);
    tick(8);
    EXPECT_TRUE(sim.referenceReading.known);
    EXPECT_NEAR(sim.referenceReading.distance, 1.5, 0.1);
    EXPECT_EQ(sim.referenceReading.lamps[4], Lamp::orange);
    EXPECT_EQ(sim.c_PractiseStopFly, 0);
    tick(8); // beyond the reference
    EXPECT_FALSE(sim.referenceReading.known);
    EXPECT_EQ(sim.c_PractiseStopFly, 1);
    EXPECT_EQ(sim.reference.at(3).longitude, 11 + 1.5 / 60 / std::cos(0.855));
}

class CommentTest : public SimulationTest {
  protected:
    [[nodiscard]] std::vector<int> marks() const {
        std::vector<int> all;
        for (int i = 1; i <= sim.c_TraceBufferMax; ++i)
            all.push_back(sim.recording.at(i).traceComment);
        return all;
    }
    void goTo(int sample) { sim.c_RepeatValue = toInt16(sample); }
};

TEST_F(CommentTest, AreMarkedWhileFlyingAndShownInReplay) {
    start(120);
    tick(8);
    sim.startComment("descend");
    tick(8);
    EXPECT_EQ(sim.c_CurrentComment.get(), "descend");
    sim.stopComment();
    tick(4);
    EXPECT_EQ(sim.c_CurrentComment.get(), "");
    sim.c_TimerEN = 0;
    EXPECT_THAT(marks(), testing::ElementsAre(-1, -1, -1, 0, 0, -1));
    for (const auto& [sample, shown] : {std::pair(4, "descend"), {6, ""}}) {
        goTo(sample);
        EXPECT_EQ(sim.c_CurrentComment.get(), shown);
    }
}

TEST_F(CommentTest, AreLaidOnAStoredFlightAndTakenOff) {
    start(120);
    tick(4 * 9);
    sim.c_TimerEN = 0;
    const auto lay = [this](const char* text, int first, int last) {
        goTo(first);
        sim.startComment(text);
        goTo(last);
        sim.stopComment();
    };
    lay("first", 1, 2);
    sim.deleteComment();
    EXPECT_THAT(marks(), testing::Each(-1));
    lay("one", 2, 4);
    EXPECT_EQ(sim.c_CurrentComment.get(), "one");
    lay("two", 5, 7);
    lay("nothing", 9, 9); // ended on the sample where it began
    EXPECT_THAT(marks(), testing::ElementsAre(-1, 1, 1, 1, 2, 2, 2, -1, -1, -1));
    for (const int sample : {6, 8}) {
        goTo(sample);
        sim.deleteComment();
        EXPECT_THAT(marks(), testing::ElementsAre(-1, 1, 1, 1, -1, -1, -1, -1, -1, -1));
    }
    EXPECT_EQ(sim.comments.text(2), "two"); // the text stays
    sim.deleteAllComments();
    EXPECT_THAT(marks(), testing::Each(-1));
    EXPECT_EQ(sim.comments.commentCount, 0);
}

TEST_F(CommentTest, ACorrectionLeavesTheLaterTexts) {
    for (const char* text : {"one", "two", "three"}) {
        sim.startComment(text);
        sim.stopComment();
    }
    sim.stepComment(-3);
    sim.startComment("ONE");
    sim.stopComment();
    sim.startComment("four");
    sim.stopComment();
    for (const auto& [index, text] : {std::pair(0, "ONE"), {1, "two"}, {2, "three"}, {3, "four"}})
        EXPECT_EQ(sim.comments.text(index), text);
    sim.deleteAllComments();
    EXPECT_EQ(sim.comments.firstFree(), 0);
}

TEST_F(CommentTest, TheTableHoldsAHundredAndOne) {
    for (int i = 0; i < Comments::count; ++i) {
        sim.startComment(std::to_string(i));
        sim.stopComment();
    }
    EXPECT_EQ(sim.comments.text(100), "100");
    EXPECT_THROW(sim.startComment("101"), RunTimeError);
    sim.stepComment(-1);
    EXPECT_EQ(sim.comments.commentCount, 100);
    EXPECT_THROW(sim.stepComment(1), RunTimeError);
    EXPECT_EQ(sim.comments.commentCount, 100);
    sim.stepComment(-200);
    EXPECT_EQ(sim.comments.commentCount, 0);
}

} // namespace
} // namespace tarnel
