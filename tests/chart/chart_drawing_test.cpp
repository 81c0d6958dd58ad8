#include "chart/chart_drawing.h"

#include <gtest/gtest.h>

#include <cmath>

namespace tarnel {
namespace {

class ChartDrawingTest : public testing::Test {
  protected:
    void draw(double rotation = 0) { DrawNAVSymbols(picture, view, stations, rotation, inputs); }

    /// Puts VOR 1 so many twips above the place where the chart has its reference point.
    void putVor1Above(int twips) {
        view.plot.mapScaleTwips =
            100; // one twip is 0.01 NM, which is what positions are rounded to
        double course = twips >= 0 ? 0 : 180;
        const DeadReckoned place = DeadReckon(view.plot.mapRef, std::abs(twips) / 100.0, course);
        stations[0].position = place.split;
        draw();
        ASSERT_EQ(stations[0].place.point.y, 3405 - twips);
    }
    double vor1Top() const { return picture.symbols[0].area.top; }

    static double angleOf(const Line& line) {
        return polarOf(line.to.x - line.from.x, line.from.y - line.to.y, 1).course;
    }
    static double lengthOf(const Line& line) {
        return std::hypot(line.to.x - line.from.x, line.to.y - line.from.y);
    }

    ChartPicture picture;
    MapView view;
    Stations stations = defaultStations();
    RadialInputs inputs;
};

TEST_F(ChartDrawingTest, SymbolsStayWithin15Twips) {
    putVor1Above(0);
    const double half = picture.symbols[0].area.height / 2;
    EXPECT_EQ(vor1Top(), 3405 - half);
    EXPECT_EQ(picture.symbols[0].area.left, 3405 - half + 7);
    const Point label = picture.symbols[0].name.anchor;
    for (const int above : {10, 15, -15, -10}) {
        putVor1Above(above);
        EXPECT_EQ(vor1Top(), 3405 - half) << above;
        EXPECT_EQ(picture.symbols[0].name.anchor, label) << above;
    }
    putVor1Above(16);
    EXPECT_EQ(vor1Top(), 3405 - 16 - half);
    putVor1Above(0);
    EXPECT_EQ(vor1Top(), 3405 - half);
    putVor1Above(-16);
    EXPECT_EQ(vor1Top(), 3405 + 16 - half);
}

TEST_F(ChartDrawingTest, LabelHangsOnItsLeader) {
    stations[0].labelOffsetX = 200;
    stations[0].labelOffsetY = -190;
    putVor1Above(0);
    const StationSymbol& symbol = picture.symbols[0];
    EXPECT_EQ(symbol.leader.from, (Point{3405, 3405}));
    EXPECT_EQ(symbol.leader.to, (Point{3605, 3215}));
    EXPECT_EQ(symbol.name.anchor, symbol.leader.to);
    stations[0].labelOffsetY = 135; // another chart may name the same place
    putVor1Above(0);
    EXPECT_EQ(symbol.name.anchor, (Point{3605, 3540}));
}

TEST_F(ChartDrawingTest, RadialsFollowReceiverAndStation) {
    struct Case {
        std::int16_t freq1;
        std::int16_t freq2;
        std::int16_t select2; ///< the receivers that the instruments follow
        std::int16_t select3;
        int slot2; ///< the slots that their lines start from, -1 for no lines
        int slot3;
    };
    constexpr Case cases[] = {{0, 1, 1, 2, 0, 1}, {0, 1, 2, 2, 1, 1},  {2, 1, 1, 1, 4, 4},
                              {1, 2, 2, 1, 4, 1}, {3, 0, 1, 2, -1, 0}, {0, -1, 2, 1, -1, 0}};
    const auto expectFrom = [&](const RadialLines& lines, int slot) {
        EXPECT_EQ(lines.course.visible, slot >= 0);
        if (slot >= 0) {
            EXPECT_EQ(lines.course.from, stations[static_cast<std::size_t>(slot)].place.wide);
            EXPECT_EQ(lines.station, static_cast<Slot>(slot));
        }
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(&c - cases);
        hideRadials(picture, picture.radialsI2);
        hideRadials(picture, picture.radialsI3);
        inputs.navFreq = {c.freq1, c.freq2};
        inputs.inst2 = {c.select2, true, 30};
        inputs.inst3 = {c.select3, true, 60};
        draw();
        expectFrom(picture.radialsI2, c.slot2);
        expectFrom(picture.radialsI3, c.slot3);
    }
}

TEST_F(ChartDrawingTest, RadialLinesLeaveTheChartOnTheirCourses) {
    inputs.inst2 = {1, true, 30};
    inputs.border = true;
    draw();
    RadialLines& lines = picture.radialsI2;
    const std::pair<const Line*, double> expected[] = {{&lines.course, 30},
                                                       {&lines.reciprocal, 210},
                                                       {&lines.borderLeft, 20},
                                                       {&lines.borderRight, 40}};
    for (const auto& [line, angle] : expected) {
        EXPECT_TRUE(line->visible);
        EXPECT_NEAR(angleOf(*line), angle, 0.0001);
        EXPECT_NEAR(lengthOf(*line), 10000, 0.0001);
    }
    EXPECT_FALSE(picture.radialsI3.course.visible);

    inputs.center = false;
    draw();
    EXPECT_FALSE(lines.course.visible);
    EXPECT_FALSE(lines.reciprocal.visible);
    EXPECT_TRUE(lines.borderLeft.visible);
    inputs.inst2.shown = false; // no longer touched: hiding is not the drawing's job
    inputs.border = false;
    draw();
    EXPECT_TRUE(lines.borderLeft.visible);
}

TEST_F(ChartDrawingTest, LocalizersFeatherTurnsWithTheChart) {
    inputs.locCourse = 83;
    inputs.navFreq = {2, 2};
    inputs.inst3 = {1, true, 15}; // a localizer has its own course
    for (const double rotation : {0.0, 270.0}) {
        draw(rotation);
        const LocalizerLines& lines = picture.localizer;
        const double course = std::fmod(83 + rotation, 360);
        EXPECT_EQ(lines.centre.from, stations[4].place.wide);
        EXPECT_NEAR(angleOf(lines.centre), course, 0.0001);
        EXPECT_NEAR(angleOf(lines.leftEdge), course - 3, 0.0001);
        EXPECT_NEAR(angleOf(lines.rightEdge), course + 3, 0.0001);
        EXPECT_EQ(lines.leftClosing.from, lines.leftEdge.to);
        EXPECT_EQ(lines.leftClosing.to, lines.centre.to);
        EXPECT_EQ(lines.rightClosing.from, lines.rightEdge.to);
        EXPECT_EQ(lines.rightClosing.to, lines.centre.to);
        EXPECT_NEAR(angleOf(picture.radialsI3.course), course, 0.0001);
    }
}

TEST_F(ChartDrawingTest, SymbolTellsWhichFacilitiesAreOn) {
    const std::tuple<bool, bool, SymbolImage> cases[] = {{true, true, SymbolImage::stationAndDme},
                                                         {true, false, SymbolImage::stationOnly},
                                                         {false, true, SymbolImage::dmeOnly},
                                                         {false, false, SymbolImage::none}};
    for (const auto& [station, dme, image] : cases) {
        showStation(picture, 1, station, dme);
        EXPECT_EQ(picture.symbols[1].image, image);
        EXPECT_EQ(picture.symbols[1].visible, image != SymbolImage::none);
    }
}

TEST_F(ChartDrawingTest, AirplaneShowsItsOutline) {
    MinatureAirplane(picture, {1000, 2000}, RotateAirplaneSymbol(0), true);
    EXPECT_EQ(picture.airplane.fuselage.from, (Point{1000, 1900}));
    EXPECT_EQ(picture.airplane.fuselage.to, (Point{1000, 2186}));
    EXPECT_EQ(picture.airplane.wing.from, (Point{786, 2000}));
    EXPECT_EQ(picture.airplane.tailplane.to, (Point{1071, 2171}));
    EXPECT_TRUE(picture.airplane.wing.visible);
    MinatureAirplane(picture, {0, 0}, RotateAirplaneSymbol(0), false);
    EXPECT_FALSE(picture.airplane.tailplane.visible);
}

TEST_F(ChartDrawingTest, NothingIsPaintedAgainThatStands) {
    inputs.inst2 = {1, true, 30};
    draw();
    const auto revision = picture.surface.revision();
    draw();
    EXPECT_EQ(picture.surface.revision(), revision);
}

} // namespace
} // namespace tarnel
