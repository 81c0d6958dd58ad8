#include "engine/simulation_fixture.h"
#include "support/told.h"

namespace tarnel {
namespace {

class ChartMouseTest : public SimulationTest {
  protected:
    void click(ChartButton button, Point at) {
        sim.mouse.down(button, at);
        sim.mouse.up();
    }
};

TEST_F(ChartMouseTest, PressPlacesTheAircraftAnywhere) {
    start(120);
    tick(20);
    sim.c_TimerEN = 0;
    sim.mouse.down(ChartButton::left, {3405 + 2500.4, 3405});
    EXPECT_EQ(sim.aircraft.place.point, (ChartPoint{5905, 3405}));
    const CourseDistance away = CourseAndDistance({49, 11}, place());
    EXPECT_NEAR(away.distance, 10, 0.001);
    EXPECT_NEAR(away.course, 90, 0.001);
    EXPECT_LT(worstRadial(0), 0.3);

    sim.mouse.move({3405, 3405 + 1250});
    EXPECT_NEAR(CourseAndDistance({49, 11}, place()).distance, 5, 0.001);
    EXPECT_NEAR(CourseAndDistance({49, 11}, place()).course, 180, 0.001);
    const GeoPosition dropped = place();
    sim.mouse.up();
    sim.mouse.move({0, 0});
    EXPECT_EQ(place(), dropped);

    sim.c_TimerEN = 1; // the recording starts over, and the flight from there
    tick(4);
    EXPECT_EQ(sim.c_TraceBufferMax, 1);
    EXPECT_NEAR(milesBetween(dropped, place()), 4 * 120.0 / 3600 / 3, 0.00001);
}

TEST_F(ChartMouseTest, NothingHappensRunningOrWithTheHeadingUp) {
    const auto expectNothing = [&] {
        const GeoPosition before = place();
        const double heading = sim.aircraft.trueHeading;
        for (const ChartButton button :
             {ChartButton::left, ChartButton::right, ChartButton::other}) {
            sim.mouse.down(button, {1000, 1000});
            sim.mouse.move({1500, 1000});
            EXPECT_FALSE(sim.picture.help.visible);
            sim.mouse.up();
        }
        EXPECT_EQ(place(), before);
        EXPECT_EQ(sim.aircraft.trueHeading, heading);
        EXPECT_FALSE(sim.picture.help.visible);
    };
    start(120, 45);
    expectNothing();
    sim.c_TimerEN = 0;
    sim.c_MAPnorthUP = 0;
    expectNothing();
    sim.c_MAPnorthUP = 1;
    click(ChartButton::other, {1000, 1000});
    EXPECT_EQ(place(), (GeoPosition{49, 11}));
}

TEST_F(ChartMouseTest, DragEndsWhenTheClockStarts) {
    sim.mouse.down(ChartButton::left, {1000, 1000});
    const GeoPosition placed = place();
    sim.c_TimerEN = 1;
    sim.mouse.move({5000, 5000});
    sim.c_TimerEN = 0;
    sim.mouse.move({5000, 5000});
    EXPECT_EQ(place(), placed);
}

TEST_F(ChartMouseTest, HeadingToolDrawsWholeDegrees) {
    const std::tuple<Point, std::int16_t, const char*> cases[] = {{{3405, 1000}, 0, "000"},
                                                                  {{5405, 3405}, 90, "090"},
                                                                  {{4405, 4412}, 135, "135"},
                                                                  {{3401, 2405}, 0, "000"}, // 359.8
                                                                  {{1405, 3405}, 270, "270"}};
    std::vector<std::int16_t> drawn;
    sim.headingDrawn = [&](std::int16_t heading) { drawn.push_back(heading); };
    sim.mouse.down(ChartButton::right, {3405, 3405}); // on the aircraft: no direction
    EXPECT_TRUE(sim.picture.help.visible && drawn.empty());
    const HeadingLine& tool = sim.picture.heading;
    for (const auto& [at, heading, caption] : cases) {
        sim.mouse.move(at);
        ASSERT_FALSE(drawn.empty());
        EXPECT_EQ(told(sim.c_HDG, sim.aircraft.trueHeading, drawn.back(), tool.value.caption),
                  told(heading, heading, heading, caption));
        EXPECT_EQ(tool.line.to, at);
        EXPECT_TRUE(tool.line.visible);
    }
    EXPECT_EQ(place(), (GeoPosition{49, 11}));
    sim.mouse.up();
    EXPECT_FALSE(tool.line.visible || sim.picture.help.visible);
    click(ChartButton::right, {3405, 3405}); // once more puts the tool away
    click(ChartButton::right, {3405, 3405});
    EXPECT_FALSE(sim.picture.help.visible);
}

} // namespace
} // namespace tarnel
