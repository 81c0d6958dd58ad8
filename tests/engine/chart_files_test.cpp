#include "engine/simulation_fixture.h"
#include "support/sample_chart.h"
#include "support/temporary_folder.h"

#include <fstream>

namespace tarnel {
namespace {

class ChartLoadingTest : public SimulationTest {
  protected:
    void load(const std::string& text) {
        std::ofstream(path, std::ios::binary) << text;
        sim.c_ChartFileName = path;
        sim.c_loadChart = 2;
        EXPECT_EQ(sim.c_loadChart, 0);
    }
    void loadLines(std::size_t count) { load(joinLines(sampleChartLines(), count)); }

    const TemporaryFolder folder;
    const std::string path = folder.path + "/own.map";
};

TEST_F(ChartLoadingTest, ChartReplacesEverything) {
    start(120, 45);
    tick(100);
    sim.c_TimerEN = 0;
    sim.c_MAPnorthUP = 0;
    load(chartWith(20, "275"));
    EXPECT_TRUE(messages.failures.empty());
    EXPECT_TRUE(messages.problems.empty());

    EXPECT_EQ(station(Slot::vor2).name.get(), "BRK");
    EXPECT_EQ(station(Slot::localizer).frequency.get(), "108.70");
    EXPECT_EQ(station(Slot::vor2).enabled, off);
    EXPECT_EQ(station(Slot::localizer).dmeEnabled, off);
    EXPECT_TRUE(inSlot(sim.stations, Slot::vor1).buttonDown);
    EXPECT_EQ(inSlot(sim.picture.symbols, Slot::vor2).image, SymbolImage::dmeOnly);
    EXPECT_EQ(inSlot(sim.picture.symbols, Slot::vor1).name.caption, "ALB\n112.30");
    EXPECT_EQ(sim.c_LocCrs1, 83);
    EXPECT_EQ(sim.c_MAPscale, 333);
    EXPECT_EQ(sim.picture.milesPer500Twips, 1.5);
    EXPECT_EQ(sim.c_MAPnorthUP, 1);
    EXPECT_EQ(place(), (GeoPosition{48.25, 11.5}));
    EXPECT_EQ(sim.c_HDG, 275);
    EXPECT_EQ(sim.aircraft.trueHeading, 275);
    EXPECT_EQ(sim.aircraft.place.point, (ChartPoint{3405, 3405}));
    EXPECT_NEAR(station(Slot::vor1).radial, trueRadial(Slot::vor1), 0.05);
    // East of Greenwich it is not: the sign of -0.5 degrees is lost.
    EXPECT_EQ(toPlain(inSlot(sim.stations, Slot::ndb1).position).longitude, 0.5);
}

TEST_F(ChartLoadingTest, RecordingStartsOver) {
    sim.newSessionName = "new";
    start(120);
    sim.startComment("of the flight before");
    tick(100);
    sim.c_TimerEN = 0;
    sim.reference.append({49, 11});
    sim.setWind({90, 40});
    sim.c_SessionFileName = "old";
    sim.c_replayInstLock = 1;
    loadLines(31);
    EXPECT_EQ(sim.recording.sampleIndex(), 1);
    EXPECT_EQ(sim.c_SessionFileName.get(), "new");
    EXPECT_EQ(sim.c_replayInstLock, 0);
    EXPECT_FALSE(sim.hasCommentMarks());
    EXPECT_TRUE(sim.reference.empty());
    EXPECT_FALSE(sim.undo());
    EXPECT_EQ(sim.clock.flightSeconds, 0);
    const Sample& first = sim.recording.at(1);
    EXPECT_EQ(std::tuple(first.traceLat, first.traceLon, first.traceHeading, first.traceTAS,
                         first.traceLocCourse),
              std::tuple(48.25, 11.5, 0, 120, 83));
    EXPECT_EQ(first.traceStations[0], (GeoPosition{48.5, 11.75}));
    sim.c_TimerEN = 1;
    tick(4);
    EXPECT_EQ(sim.c_TraceBufferMax, 1);
    EXPECT_EQ(sim.c_ApSeconds2, 1);
}

TEST_F(ChartLoadingTest, ScaleOutOfRangeStaysAndTheAircraftIsTheCentre) {
    sim.c_MAPscale = 500;
    load(chartWith(17, ":ms:,4.1"));
    EXPECT_EQ(sim.c_MAPscale, 500);
    EXPECT_EQ(place(), (GeoPosition{48.25, 11.5}));
    load(chartWith(17, ":ms:,4"));
    EXPECT_EQ(sim.c_MAPscale, 125);
    load(chartWith(16, ":mc:,3"));
    EXPECT_EQ(sim.c_MAPCenterSelect, 3); // from the next change of the view on
    EXPECT_EQ(sim.view.mapCenter, sim.aircraft.position);
}

} // namespace
} // namespace tarnel
