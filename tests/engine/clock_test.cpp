#include "engine/simulation_fixture.h"
#include "support/told.h"

namespace tarnel {
namespace {

class ClockTest : public SimulationTest {};

TEST_F(ClockTest, FlightTimeRunsOnlyInFlight) {
    start(0);
    sim.c_Timer_on_off = 1;
    tick(minute + 3);
    EXPECT_EQ(told(sim.c_ApMinutes, sim.c_ApSeconds, sim.c_ApMinutes2), "1 1 0");
    sim.c_Timer_on_off = 0;
    sim.c_TAS = 90;
    tick(2 * minute + 5); // 120 seconds and 5/3
    EXPECT_EQ(told(sim.c_ApMinutes, sim.c_ApMinutes2, sim.c_ApSeconds2), "1 2 1");
}

TEST_F(ClockTest, StopwatchResetWaitsForTheTickUnlessPaused) {
    start(0);
    sim.c_Timer_on_off = 1;
    tick(30);
    sim.c_ResetTimer = 0;
    EXPECT_EQ(sim.c_ApSeconds, 10);
    tick(3);
    EXPECT_EQ(sim.c_ApSeconds, 1); // cleared, then counted on
    EXPECT_EQ(sim.c_ResetTimer, 1);
    sim.c_TimerEN = 0;
    sim.c_ResetTimer = 0;
    EXPECT_EQ(sim.c_ApSeconds, 0);
    EXPECT_EQ(sim.c_ResetTimer, 1);
}

class RecorderTest : public SimulationTest {};

TEST_F(RecorderTest, FreshStartRecordsFromSampleOne) {
    start(120);
    tick(11);
    EXPECT_EQ(sim.c_TraceBufferMax, 4); // on from sample 1, at ticks 3, 7 and 11
    sim.c_TimerEN = 0;
    sim.c_Timer_on_off = 1;
    sim.markFreshStart();
    sim.c_TimerEN = 1;
    EXPECT_EQ(sim.clock.flightSeconds, 0);
    tick(4); // ticks 12 to 15
    EXPECT_EQ(sim.c_TraceBufferMax, 1);
    EXPECT_EQ(sim.recording.at(1).traceStopSeconds, 1);
    EXPECT_EQ(sim.recording.at(2).traceTAS, 0); // what stood there is gone
    sim.c_TimerEN = 0;
    sim.c_TimerEN = 1; // only the first start clears
    tick(4);
    EXPECT_EQ(sim.c_TraceBufferMax, 2);
}

TEST_F(RecorderTest, SampleHoldsTheState) {
    sim.wind = {222.5, 17};
    sim.c_LocCrs1 = 83;
    start(0, 300);
    sim.Turn_Rate = -1;
    sim.c_TAS = 140;
    tick(3);
    const Sample& sample = sim.recording.at(sim.recording.sampleIndex());
    EXPECT_NEAR(sample.traceHeading, 299, 0.001);
    EXPECT_EQ(std::tuple(sample.traceTAS, sample.traceTurnRate, sample.traceLocCourse),
              std::tuple(140, -1, 83));
    EXPECT_LT(milesBetween({sample.traceLat, sample.traceLon}, place()), 0.06);
    EXPECT_EQ(sample.traceFlightSeconds, static_cast<int>(sim.clock.flightSeconds));
    EXPECT_EQ(sample.traceStations[4], toPlain(sim.stations[4].position));
    EXPECT_EQ(std::tuple(sample.traceWindDirection, sample.traceWindSpeed),
              std::tuple(222, 17)); // a tie
}

TEST_F(RecorderTest, CoursesAreRecordedTrueWithTheHeadingUp) {
    start(120, 300);
    sim.c_MAPnorthUP = 0;
    sim.c_obsI2 = 100;
    sim.c_obsI3 = -280;
    tick(3);
    const Sample& sample = sim.recording.at(sim.recording.sampleIndex());
    EXPECT_EQ(sample.traceObsI2, 400); // not wrapped
    EXPECT_EQ(sample.traceObsI3, 20);
}

TEST_F(RecorderTest, FullBufferWarnsAndStartsOver) {
    messages.sampleIndex = [this] { return sim.recording.sampleIndex(); };
    start(120);
    sim.Turn_Rate = 3; // stay on the chart
    sim.c_SessionFileName = "mine";
    tick(3 + 4 * (5980 - 2));
    const std::vector<std::pair<int, BufferWarning>> expected = {{5900, BufferWarning::almostFull},
                                                                 {1, BufferWarning::full}};
    EXPECT_EQ(messages.warnings, expected);
    EXPECT_EQ(told(sim.c_TraceBufferMax, sim.clock.flightHours + sim.clock.flightMinutes,
                   sim.recording.at(5979).traceTAS, sim.c_SessionFileName),
              "1 0 120 ");
}

} // namespace
} // namespace tarnel
