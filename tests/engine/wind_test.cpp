#include "engine/simulation_fixture.h"
#include "support/told.h"

#include <set>

namespace tarnel {
namespace {

class WindTest : public SimulationTest {
  protected:
    void draw(Point from, Point to) {
        sim.c_WindSetEN = 1;
        sim.mouse.down(ChartButton::left, from);
        sim.mouse.move(to);
    }
};

TEST_F(WindTest, ModesHideDrawAndRecall) {
    sim.c_WindSetEN = 3;
    EXPECT_EQ(sim.c_wind.get(), "0/0"); // none was ever set
    sim.setWind({200, 30});
    sim.c_WindSetEN = 0;
    EXPECT_EQ(sim.c_wind.get(), "0/0");
    sim.c_WindSetEN = 3;
    EXPECT_EQ(sim.c_wind.get(), "200/30");
    sim.c_WindSetEN = 7;
    EXPECT_EQ(sim.c_wind.get(), "200/30");
    EXPECT_EQ(sim.c_WindSetEN, 7);
}

TEST_F(WindTest, ByChanceStaysInItsRangeAndFollowsTheSeed) {
    std::set<double> directions;
    std::set<int> speeds;
    std::uint32_t seed = 0;
    sim.clockSeed = [&] { return seed += 977; };
    for (int i = 0; i < 4000; ++i) {
        sim.c_WindSetEN = 2;
        directions.insert(sim.wind.direction);
        speeds.insert(sim.wind.speed);
    }
    EXPECT_EQ(std::tuple(*directions.begin(), *directions.rbegin(), directions.size()),
              std::tuple(0, 350, 71));
    EXPECT_EQ(speeds, (std::set<int>{5, 10, 15, 20, 25, 30, 35, 40, 45}));
    seed = 0;
    sim.c_WindSetEN = 2;
    const std::string first = sim.c_wind;
    seed = 0;
    sim.c_WindSetEN = 2;
    EXPECT_EQ(sim.c_wind.get(), first);
    sim.c_WindSetEN = 0;
    sim.c_WindSetEN = 3;
    EXPECT_EQ(sim.c_wind.get(), first);
}

TEST_F(WindTest, OfARecordingIsTheOneToComeBackToAndByChanceStaysUntold) {
    sim.c_SpeedVectorEN = 1;
    sim.tellChanceWind(false);
    sim.c_WindSetEN = 2;
    const std::string chance = sim.c_wind;
    EXPECT_FALSE(sim.picture.windLabel.visible);
    start(120);
    tick(8);
    sim.c_TimerEN = 0;
    sim.c_ScratchPath = testing::TempDir();
    EXPECT_TRUE(sim.keepTemporary() && sim.recallTemporary()); // of a practice flight
    sim.setWind({90, 77});
    EXPECT_TRUE(sim.picture.windLabel.visible);
    sim.c_RepeatValue = 2;
    EXPECT_EQ(sim.windSource, WindSource::byChance);
    EXPECT_FALSE(sim.picture.windLabel.visible);
    sim.tellChanceWind(true);
    EXPECT_TRUE(sim.picture.windLabel.visible);
    sim.c_WindSetEN = 0;
    sim.c_WindSetEN = 3;
    EXPECT_EQ(sim.c_wind.get(), chance);
    EXPECT_EQ(sim.windSource, WindSource::byHand);
    sim.c_NewSession = 1;
    sim.recording.edit(1).traceWindDirection = 90;
    sim.recording.edit(1).traceWindSpeed = 30;
    sim.c_RepeatValue = 1;
    EXPECT_EQ(sim.windSource, WindSource::recorded);
}

TEST_F(WindTest, IsDrawnTheWayItBlows) {
    draw({3000, 3000}, {4000, 3000}); // to the right: from the west
    EXPECT_EQ(sim.c_wind.get(), "270/20");
    const WindLine& tool = sim.picture.windLine;
    EXPECT_EQ(told(tool.line.visible, tool.direction.caption, tool.direction.visible,
                   tool.speed.caption, tool.speed.visible, tool.line.to.x),
              "1 270 1 20 1 4000");
    sim.mouse.move({3000, 3099});
    EXPECT_EQ(sim.c_wind.get(), "0/0"); // 99 twips are less than a step
    sim.mouse.move({3000, 4250});
    EXPECT_EQ(sim.c_wind.get(), "0/24");
    const GeoPosition before = place();
    sim.mouse.up();
    EXPECT_EQ(place(), before);
    EXPECT_FALSE(sim.mouse.windTool());
    EXPECT_FALSE(sim.picture.windLine.line.visible);
    EXPECT_FALSE(sim.picture.help.visible);
    sim.c_WindSetEN = 0;
    sim.c_WindSetEN = 3;
    EXPECT_EQ(sim.c_wind.get(), "0/24");
}

TEST_F(WindTest, CanBeDrawnInFlightButAStartPutsTheToolAway) {
    sim.c_WindSetEN = 1;
    start(120);
    EXPECT_FALSE(sim.mouse.windTool());
    draw({1000, 1000}, {1000, 3000});
    EXPECT_EQ(sim.c_wind.get(), "0/40");
    sim.mouse.up();
    sim.c_MAPnorthUP = 0;
    draw({1000, 1000}, {2000, 1000});
    EXPECT_EQ(sim.c_wind.get(), "0/40"); // not on a turned chart
}

TEST_F(WindTest, LabelShowsWithTheVectorsOrTheTurnsAhead) {
    sim.setWind({225, 15});
    EXPECT_FALSE(sim.picture.windLabel.visible);
    sim.c_SpeedVectorEN = 1;
    EXPECT_TRUE(sim.picture.windLabel.visible);
    EXPECT_EQ(sim.picture.windTold, (Wind{225, 15}));
    sim.mouse.down(ChartButton::left, {3000, 3000});
    EXPECT_FALSE(sim.picture.windLabel.visible); // while the aircraft is placed
    sim.c_TraceAheadEN = 1;
    EXPECT_TRUE(sim.picture.windLabel.visible);
    sim.mouse.up();
    sim.c_TraceAheadEN = sim.c_SpeedVectorEN = 0;
    EXPECT_FALSE(sim.picture.windLabel.visible);
}

TEST_F(WindTest, TurnsAheadAreMirrorImagesWithoutWind) {
    sim.c_TAS = 180;
    sim.c_TraceAheadEN = 1;
    const std::vector<Dot> dots = sim.picture.ahead.all();
    ASSERT_EQ(dots.size(), 60U);
    for (std::size_t i = 0; i < 30; ++i) {
        EXPECT_NEAR(dots[i].x - 3405, 3405 - dots[i + 30].x, 3) << i;
        EXPECT_NEAR(dots[i].y, dots[i + 30].y, 3) << i;
    }
    // Half a circle at 180 kt and 3 degrees a second: 1.91 NM from side to side.
    EXPECT_NEAR((dots[29].x - 3405) / 250.0, 1.91, 0.1);
    // A wind from the west carries both sides to the east, half a mile in a minute.
    sim.setWind({270, 30});
    EXPECT_NEAR((sim.picture.ahead.all()[29].x - dots[29].x) / 250.0, 0.5, 0.08);
    sim.c_TraceAheadEN = 0;
    EXPECT_TRUE(sim.picture.ahead.all().empty());
}

TEST_F(WindTest, TurnsAheadLieOverTheSameGroundInBothViews) {
    sim.c_TAS = 180;
    sim.setWind({150, 20});
    sim.turnAircraft(60);
    sim.c_TraceAheadEN = 1;
    const std::vector<Dot> north = sim.picture.ahead.all();
    const Point before = sim.aircraft.place.wide;
    sim.c_MAPnorthUP = 0;
    const std::vector<Dot> turned = sim.picture.ahead.all();
    const Point after = sim.aircraft.place.wide;
    ASSERT_EQ(turned.size(), north.size());
    for (std::size_t i = 0; i < north.size(); ++i) {
        const Point expected = RotatePoint(
            -60, after, {after.x + north[i].x - before.x, after.y + north[i].y - before.y});
        EXPECT_NEAR(turned[i].x, expected.x, 1) << i;
        EXPECT_NEAR(turned[i].y, expected.y, 1) << i;
    }
}

} // namespace
} // namespace tarnel
