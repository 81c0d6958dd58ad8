#include "engine/chart_crosshair.h"
#include "engine/simulation_fixture.h"
#include "support/told.h"

namespace tarnel {
namespace {

using Way = ChartCrosshair::Way;
using Stride = ChartCrosshair::Stride;
using Grip = ChartCrosshair::Grip;

class ChartCrosshairTest : public SimulationTest {
  protected:
    std::string state() {
        std::string all =
            told(sim.aircraft.position.latitude.degrees, sim.aircraft.position.latitude.minutes,
                 sim.aircraft.position.longitude.minutes, sim.aircraft.trueHeading, sim.c_HDG,
                 sim.wind.direction, sim.wind.speed);
        for (const Station& each : sim.stations)
            all += told(each.position.latitude.minutes, each.position.longitude.minutes);
        return all;
    }
    void drag(ChartButton button, Point from, Point to) {
        sim.mouse.down(button, from);
        sim.mouse.move(to);
        sim.mouse.up();
    }
    void steps(int count, Way way, Stride stride = Stride::usual) {
        for (int i = 0; i < count; ++i)
            keys.step(way, stride);
    }
    /// What the keys bring about comes out again, to the bit, of the mouse's `hand`.
    void expectAsByMouse(const std::function<void()>& byKeys, const std::function<void()>& hand) {
        const std::string before = state();
        byKeys();
        const std::string after = state();
        EXPECT_NE(after, before);
        ASSERT_TRUE(sim.undo());
        EXPECT_EQ(state(), before);
        hand();
        EXPECT_EQ(state(), after);
    }

    ChartCrosshair keys{{.mouse = sim.mouse,
                         .aircraft = sim.aircraft,
                         .stations = sim.stations,
                         .view = sim.view,
                         .picture = sim.picture,
                         .wind = sim.wind,
                         .windSource = sim.windSource}};
};

TEST_F(ChartCrosshairTest, DoesToTheBitWhatTheMouseDoesThere) {
    const double mile = sim.view.plot.mapScaleTwips;
    const Point from = sim.aircraft.place.wide;
    expectAsByMouse(
        [&] {
            steps(3, Way::right);
            steps(1, Way::up, Stride::large);
            steps(4, Way::left, Stride::fine);
            EXPECT_TRUE(keys.press());
        },
        [&] { drag(ChartButton::left, keys.place(), keys.place()); });
    EXPECT_NEAR(keys.place().x, from.x + 2.6 * mile, 1e-6);
    EXPECT_NEAR(keys.place().y, from.y - 5 * mile, 1e-6);

    expectAsByMouse(
        [&] {
            EXPECT_TRUE(keys.turn());
            steps(2, Way::left);
            steps(3, Way::right, Stride::large);
            EXPECT_EQ(sim.c_HDG, 28);
            EXPECT_TRUE(keys.press());
        },
        [&] {
            const Point nose = sim.aircraft.place.wide;
            drag(ChartButton::right, nose, {nose.x + 469.4716, nose.y - 882.9476});
        });

    expectAsByMouse(
        [&] {
            sim.mouse.pickWindTool();
            steps(3, Way::up, Stride::large);
            steps(1, Way::down);
            steps(9, Way::left, Stride::large);
            EXPECT_EQ(told(sim.wind.direction, sim.wind.speed), told(270, 28));
            EXPECT_TRUE(keys.press());
        },
        [&] {
            sim.mouse.pickWindTool();
            drag(ChartButton::left, {1000, 2000}, {1000 + 1440, 2000 + 12});
        });

    sim.c_mapedit = 1;
    keys.toStation(1);
    expectAsByMouse(
        [&] {
            EXPECT_TRUE(keys.press());
            EXPECT_TRUE(keys.grip() == Grip::station && keys.station() == Slot::vor1);
            steps(2, Way::down);
            EXPECT_TRUE(keys.press());
        },
        [&] {
            const Point station = inSlot(sim.stations, Slot::vor1).place.wide;
            drag(ChartButton::left, station, {station.x, station.y + 2 * mile});
        });
}

TEST_F(ChartCrosshairTest, DrawsEachDegreeAndEachSecondKnot) {
    sim.mouse.pickWindTool();
    for (int knots = 2; knots <= 200; knots += 2) {
        keys.step(Way::up, Stride::usual);
        EXPECT_EQ(sim.wind.speed, knots);
    }
    keys.step(Way::up, Stride::large);
    EXPECT_EQ(sim.wind.speed, 200);
    for (int degrees = 359; degrees >= 0; --degrees) {
        keys.step(Way::left, Stride::usual);
        EXPECT_EQ(told(sim.wind.direction, sim.wind.speed), told(degrees, 200));
    }
}

TEST_F(ChartCrosshairTest, LeavesWithoutAChange) {
    const std::string before = state();
    const auto expectPutBack = [&] {
        EXPECT_TRUE(keys.leave());
        EXPECT_FALSE(keys.leave() || keys.shown() || sim.mouse.holds() || sim.mouse.windTool());
        EXPECT_EQ(state(), before);
        EXPECT_FALSE(sim.history.undoable());
    };
    steps(3, Way::down);
    expectPutBack();
    keys.turn();
    steps(5, Way::right);
    expectPutBack();
    sim.mouse.pickWindTool();
    expectPutBack();
    sim.mouse.pickWindTool();
    steps(5, Way::up);
    expectPutBack();
    sim.c_mapedit = 1;
    keys.toStation(-1);
    keys.press();
    steps(5, Way::left);
    expectPutBack();
    sim.c_mapedit = 0;

    start(120); // the mouse can do nothing in flight, and the crosshair no more
    steps(1, Way::left);
    EXPECT_FALSE(keys.press() || keys.turn());
    sim.c_TimerEN = 0;
    sim.mouse.setLocked(true);
    steps(1, Way::left);
    EXPECT_FALSE(keys.press() || keys.turn());
}

TEST_F(ChartCrosshairTest, TellsItsPlaceFromAStationAndStaysOnThePaper) {
    keys.toStation(1);
    EXPECT_EQ(keys.toldFrom(), Slot::vor1);
    EXPECT_EQ(keys.seenFrom(Slot::vor1).distance, 0);
    steps(2, Way::left);
    EXPECT_NEAR(keys.seenFrom(Slot::vor1).course, 270, 1e-6);
    EXPECT_NEAR(keys.seenFrom(Slot::vor1).distance, 2, 1e-6);
    keys.toStation(-1);
    EXPECT_EQ(keys.toldFrom(), Slot::localizer);
    keys.switchTelling();
    EXPECT_FALSE(keys.toldFrom());
    keys.switchTelling();
    EXPECT_EQ(keys.toldFrom(), Slot::localizer);
    steps(20, Way::up, Stride::large);
    EXPECT_EQ(keys.place().y, 0);
    keys.toAircraft();
    EXPECT_NEAR(keys.position().latitude, place().latitude, 1e-4);
    sim.c_AirplaneEN = 0; // hidden: its place is not told
    sim.SimStep();
    steps(2, Way::up);
    keys.toAircraft();
    EXPECT_EQ(keys.place().y, sim.picture.size / 2);
}

} // namespace
} // namespace tarnel
