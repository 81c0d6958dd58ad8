#include "window/chart/chart_labels.h"
#include "window/widgets/line_clipping.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <random>
#include <vector>

namespace tarnel {
namespace {

constexpr double upwards = 25;
constexpr double toTheRight = 90;
constexpr double downwards = 155;

const QRectF paper(0, 0, 544, 544);

ChartLabel vorLabel(QPointF station, double side = upwards) {
    ChartLabel label;
    label.station = station;
    label.symbolRadius = 12;
    label.clearance = 46;
    label.side = side;
    label.size = {45, 31};
    return label;
}

double distance(const QRectF& box, QPointF point) {
    const double dx = std::max({box.left() - point.x(), 0.0, point.x() - box.right()});
    const double dy = std::max({box.top() - point.y(), 0.0, point.y() - box.bottom()});
    return std::hypot(dx, dy);
}

void expectApart(std::span<const ChartLabel> labels) {
    for (std::size_t i = 0; i < labels.size(); ++i) {
        EXPECT_TRUE(paper.contains(labels[i].box)) << i;
        for (std::size_t k = i + 1; k < labels.size(); ++k)
            EXPECT_FALSE(labels[i].box.intersects(labels[k].box)) << i << " and " << k;
    }
}

TEST(ChartLabels, StandAloneOnTheirOwnSideJustClearOfTheSymbol) {
    for (const double side : {0.0, 45.0, 90.0, 135.0, 180.0, -45.0, -90.0}) {
        std::array labels{vorLabel({272, 272}, side), vorLabel({272, 272}, side)};
        labels[1].shown = false; // takes no room
        placeLabels(labels, paper, {});
        EXPECT_TRUE(labels[1].box.isEmpty());
        const ChartLabel& label = labels[0];
        EXPECT_EQ(label.turn, 0) << side;
        EXPECT_NEAR(distance(label.box, label.station), label.clearance, 0.5) << side;
        EXPECT_EQ(label.leftOfStation, side < 0) << side;

        const QLineF leader = label.leader();
        EXPECT_NEAR(QLineF(label.station, leader.p1()).length(), label.symbolRadius, 1e-9);
        EXPECT_EQ(leader.p2(), label.bar().center());
        EXPECT_DOUBLE_EQ(label.bar().x1(), side < 0 ? label.box.right() : label.box.left());
    }
}

TEST(ChartLabels, OfStationsAtOnePlaceAreNudgedApart) {
    std::array labels{vorLabel({300, 300}), vorLabel({300, 300}), vorLabel({301, 300}),
                      vorLabel({300, 302}), vorLabel({300, 300})};
    placeLabels(labels, paper, {});
    expectApart(labels);
    for (const ChartLabel& label : labels)
        EXPECT_GE(distance(label.box, label.station), label.clearance - 1);
}

TEST(ChartLabels, StayApartOnCrowdedCharts) {
    std::mt19937 random(7);
    std::uniform_real_distribution<double> place(200, 340);
    std::uniform_real_distribution<double> side(0, 360);
    for (int chart = 0; chart < 200; ++chart) {
        SCOPED_TRACE(chart);
        std::vector<ChartLabel> labels;
        for (int i = 0; i < 5; ++i)
            labels.push_back(vorLabel({place(random), place(random)}, side(random)));
        placeLabels(labels, paper, {});
        expectApart(labels);
    }
}

TEST(ChartLabels, StayOnThePaperAndOffObstacles) {
    const QRectF strip(0, 0, 544, 44);
    const QRectF scaleBar(10, 500, 170, 36);
    const QLineF vector(272, 272, 320, 200);
    const std::array areas{strip, scaleBar};
    const std::array lines{vector};
    std::array labels{vorLabel({272, 80}), vorLabel({540, 300}, toTheRight),
                      vorLabel({60, 470}, downwards), vorLabel({2, 200}, -90),
                      vorLabel({272, 272}, 40)};
    placeLabels(labels, paper, {areas, lines});
    expectApart(labels);
    for (const ChartLabel& label : labels) {
        EXPECT_FALSE(label.box.intersects(strip));
        EXPECT_FALSE(label.box.intersects(scaleBar));
        EXPECT_FALSE(clipped(vector, label.box));
    }
}

TEST(ChartLabels, KeepAnEvasionWhileItIsAboutAsGood) {
    // The second label gives way; as its station comes free, it must not jump back and forth.
    std::array labels{vorLabel({272, 272}), vorLabel({272, 272})};
    placeLabels(labels, paper, {});
    ASSERT_NE(labels[0].turn, labels[1].turn);
    int jumps = 0;
    int turn = labels[1].turn;
    for (int step = 0; step < 200; ++step) {
        labels[1].station.rx() += (step % 2 == 0 ? 1.5 : -1) * 0.8;
        placeLabels(labels, paper, {});
        jumps += labels[1].turn != turn;
        turn = labels[1].turn;
    }
    EXPECT_LE(jumps, 4);
}

TEST(LineClipping, KeepsThePartOnThePaperIfThereIsOne) {
    const QRectF area(0, 0, 100, 100);
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const QLineF none(-1, -1, -1, -1);
    const std::pair<QLineF, QLineF> cases[] = {{{10, 10, 90, 20}, {10, 10, 90, 20}},
                                               {{-50, 50, 150, 50}, {0, 50, 100, 50}},
                                               {{150, 50, -50, 50}, {100, 50, 0, 50}},
                                               {{50, 50, 50, 1e7}, {50, 50, 50, 100}},
                                               {{-1e7, -1e7, 50, 50}, {0, 0, 50, 50}},
                                               {{-20, 100, 40, 100}, {0, 100, 40, 100}},
                                               {{-50, 50, 50, -50}, {0, 0, 0, 0}},
                                               {{30, 30, 30, 30}, {30, 30, 30, 30}},
                                               {{-10, 0, -10, 100}, none},
                                               {{0, 110, 100, 101}, none},
                                               {{-60, 50, 50, -61}, none},
                                               {{101, 101, 1e7, 1e7}, none},
                                               {{120, 120, 120, 120}, none},
                                               {{nan, 0, 50, 50}, none}};
    for (const auto& [line, part] : cases) {
        const QLineF visible = clipped(line, area).value_or(none);
        EXPECT_LT(QLineF(visible.p1(), part.p1()).length(), 1e-6) << line.x1() << ' ' << line.y1();
        EXPECT_LT(QLineF(visible.p2(), part.p2()).length(), 1e-6) << line.x1() << ' ' << line.y1();
    }
}

} // namespace
} // namespace tarnel
