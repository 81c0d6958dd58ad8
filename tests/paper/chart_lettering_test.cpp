#include "chart/chart_drawing.h"
#include "paper/chart_lettering.h"
#include "paper/grid.h"
#include "paper/line_layout.h"
#include "paper/plates.h"

#include <gtest/gtest.h>

#include <cmath>

namespace tarnel {
namespace {

/// A chart with all that is lettered, turned as it is with the heading at the top.
class ChartLetteringTest : public testing::Test {
  protected:
    ChartLetteringTest() {
        for (std::size_t slot = 0; slot < slotCount; ++slot)
            showStation(picture, slot, true, hasDme(slot));
        inputs.navFreq = {0, 2};
        inputs.inst2 = {1, true, 40};
        inputs.inst3 = {2, true, 0};
        inputs.locCourse = 283;
        picture.windLabel.visible = true;
        view.plot.mapScaleTwips = 380;
    }

    void layOut(double rotation) {
        inputs.inst2.obs = 40 + rotation;
        DrawNAVSymbols(picture, view, stations, rotation, inputs);
        drawSpeedVectors(picture, {{3405, 3405}, {3405, 2400}, {3000, 2500}, 0, 0}, true);
        lettering.layOut({picture, frame, scale.plate, true, airplane, {272, 272}}, room);
    }
    [[nodiscard]] std::vector<Box> plates() const {
        std::vector<Box> all{lettering.airSpeed, lettering.groundSpeed, lettering.wind};
        for (const NameLabel& name : lettering.names)
            if (name.shown)
                all.push_back(name.box);
        return all;
    }

    ChartPicture picture;
    MapView view;
    Stations stations = defaultStations();
    RadialInputs inputs;
    PaperFrame frame{544, 6810, 1};
    ScaleBar scale{frame, 30};
    Box airplane = Box::about({272, 272}, {36, 24});
    LetteringRoom room{{{{45, 31}, {45, 31}, {45, 31}, {45, 31}, {45, 31}}},
                       {40, 13},
                       {34, 13},
                       {50, 12},
                       {48, 12},
                       {80, 15}};
    ChartLettering lettering;
};

TEST_F(ChartLetteringTest, StandsApartUprightAndAtItsStationOnAChartThatTurns) {
    for (double rotation = 0; rotation < 360; rotation += 7.5) {
        SCOPED_TRACE(rotation);
        layOut(rotation);
        const std::vector<Box> all = plates();
        EXPECT_GE(all.size(), 6U);
        for (std::size_t i = 0; i < all.size(); ++i) {
            EXPECT_TRUE(frame.sheet().contains(all[i])) << i;
            for (std::size_t k = i + 1; k < all.size(); ++k)
                EXPECT_FALSE(all[i].overlaps(all[k])) << i << " and " << k;
        }
        for (std::size_t slot = 0; slot < slotCount; ++slot)
            if (lettering.names[slot].shown) {
                const Spot station = frame.spot(stations[slot].place.wide);
                EXPECT_LT(Stroke(lettering.names[slot].station, station).length(), 1.5) << slot;
            }
        for (const auto& [lines, letters] : {std::pair(&picture.radialsI2, lettering.radialI2),
                                             {&picture.radialsI3, lettering.radialI3}}) {
            ASSERT_TRUE(letters);
            const double angle = letters->turn * planePi / 180;
            const Spot along{std::cos(angle), std::sin(angle)};
            const Spot way = letters->on - frame.spot(lines->course.from);
            EXPECT_LE(std::abs(letters->turn), 90) << "upside down";
            EXPECT_NEAR(way.x * along.y - way.y * along.x, 0, 0.01) << "off its line";
            EXPECT_LT(letters->plate.bottom(), 0) << "on its line";
            EXPECT_TRUE(frame.sheet().contains(letters->on));
        }
    }
}

TEST_F(ChartLetteringTest, LettersOnlyWhatIsToBeSeen) {
    layOut(0);
    picture.radialsI3 = picture.radialsI2;
    picture.windLabel.visible = false;
    picture.symbols[1].name.visible = false;
    lettering.layOut({picture, frame, scale.plate, false, airplane, {272, 272}}, room);
    EXPECT_TRUE(lettering.radialI2);
    EXPECT_FALSE(lettering.radialI3) << "twice the same course";
    EXPECT_TRUE(lettering.wind.empty());
    EXPECT_FALSE(lettering.names[1].shown);
    picture.radialsI2.course.visible = false;
    lettering.layOut({picture, frame, scale.plate, false, airplane, {272, 272}}, room);
    EXPECT_FALSE(lettering.radialI2);
    // A station far off the paper has radials all over it.
    const Stroke ray = asRay(frame, {{-40000, 3405}, {-30000, 3405}});
    EXPECT_GT(ray.to.x, frame.side);
    EXPECT_NEAR(ray.to.y, 272, 0.01);
}

TEST(Plates, StayOnPapersOfAnySize) {
    for (const double side : {260.0, 380.0, 544.0, 900.0, 1400.0}) {
        const PaperFrame frame(side, 6810, 1);
        const Box pill = helpPill(frame, 150);
        const Box plates[] = {ScaleBar(frame, side / 20).plate, lampsPlate(frame),
                              NorthArrow(frame).plate, pill};
        for (const Box& plate : plates) {
            EXPECT_TRUE(!plate.empty() && frame.sheet().contains(plate)) << side;
            EXPECT_EQ(&plate == &plates[3], plate.top < side / 2) << side;
        }
        EXPECT_FALSE(plates[0].overlaps(plates[1]) || plates[0].overlaps(plates[2])) << side;
        for (const Point at :
             {Point{0, 0}, Point{6800, 100}, Point{6800, 6800}, Point{100, 6800}}) {
            EXPECT_TRUE(frame.sheet().contains(plateBesidePointer(frame, at, {150, 80})));
            const RowsPlate rows = rowsPlate(frame, at, {60, 14}, 3);
            EXPECT_TRUE(frame.sheet().contains(rows.plate));
            EXPECT_LE(rows.firstRow.top + 3 * rows.firstRow.height, rows.plate.bottom());
        }
    }
}

TEST(Grid, KeepsItsMilesWhileItTurns) {
    const PaperFrame frame(544, 6810, 1);
    for (const double rotation : {0.0, 33.0, 200.0})
        for (const auto& [kind, miles] :
             {std::pair(GridLine::tenMiles, 10.0), {GridLine::fiveMiles, 5.0}}) {
            const GridPlace grid{{272.5, 272.5}, 8, rotation};
            int through = 0;
            for (const Stroke& line : gridLines(frame, grid, kind)) {
                const Spot way = grid.origin - line.from;
                const double off =
                    std::abs(way.x * line.way().y - way.y * line.way().x) / line.length();
                EXPECT_NEAR(std::remainder(off, miles * 8), 0, 0.51) << rotation;
                through += off < 0.01 ? 1 : 0;
            }
            EXPECT_EQ(through, kind == GridLine::tenMiles ? 2 : 0) << rotation;
        }
}

} // namespace
} // namespace tarnel
