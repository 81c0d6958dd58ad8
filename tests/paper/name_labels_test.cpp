#include "paper/line_clipping.h"
#include "paper/name_labels.h"

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

constexpr Box paper{0, 0, 544, 544};

NameLabel vorLabel(Spot station, double side = upwards) {
    NameLabel label;
    label.station = station;
    label.symbolRadius = 12;
    label.clearance = 46;
    label.side = side;
    label.size = {45, 31};
    return label;
}

double distance(const Box& box, Spot spot) {
    const double dx = std::max({box.left - spot.x, 0.0, spot.x - box.right()});
    const double dy = std::max({box.top - spot.y, 0.0, spot.y - box.bottom()});
    return std::hypot(dx, dy);
}

void expectApart(std::span<const NameLabel> labels) {
    for (std::size_t i = 0; i < labels.size(); ++i) {
        EXPECT_TRUE(paper.contains(labels[i].box)) << i;
        for (std::size_t k = i + 1; k < labels.size(); ++k)
            EXPECT_FALSE(labels[i].box.overlaps(labels[k].box)) << i << " and " << k;
    }
}

TEST(NameLabels, StandAloneOnTheirOwnSideJustClearOfTheSymbol) {
    for (const double side : {0.0, 45.0, 90.0, 135.0, 180.0, -45.0, -90.0}) {
        std::array labels{vorLabel({272, 272}, side), vorLabel({272, 272})};
        labels[1].shown = false; // and takes no room
        placeLabels(labels, paper, {});
        const NameLabel& label = labels[0];
        EXPECT_TRUE(labels[1].box.empty());
        EXPECT_EQ(label.turn, 0) << side;
        EXPECT_NEAR(distance(label.box, label.station), label.clearance, 0.5) << side;
        EXPECT_EQ(label.leftOfStation, side < 0) << side;

        const Stroke leader = label.leader();
        EXPECT_NEAR(Stroke(label.station, leader.from).length(), label.symbolRadius, 1e-9);
        EXPECT_EQ(leader.to, label.bar().middle());
        EXPECT_DOUBLE_EQ(label.bar().from.x, side < 0 ? label.box.right() : label.box.left);
    }
}

TEST(NameLabels, StayApartOnCrowdedChartsAndAtOnePlace) {
    std::mt19937 random(7);
    std::uniform_real_distribution<double> side(0, 360);
    for (int chart = 0; chart < 200; ++chart) {
        SCOPED_TRACE(chart);
        const double spread = chart % 10 == 0 ? 1 : 70;
        std::uniform_real_distribution<double> place(270 - spread, 270 + spread);
        std::vector<NameLabel> labels;
        for (int i = 0; i < 5; ++i)
            labels.push_back(vorLabel({place(random), place(random)}, side(random)));
        placeLabels(labels, paper, {});
        expectApart(labels);
    }
}

TEST(NameLabels, StayOnThePaperAndOffObstacles) {
    const std::array areas{Box{0, 0, 544, 44}, Box{10, 500, 170, 36}};
    const std::array lines{Stroke{{272, 272}, {320, 200}}};
    std::array labels{vorLabel({272, 80}), vorLabel({540, 300}, toTheRight),
                      vorLabel({60, 470}, downwards), vorLabel({2, 200}, -90),
                      vorLabel({272, 272}, 40)};
    placeLabels(labels, paper, {areas, lines});
    expectApart(labels);
    for (const NameLabel& label : labels) {
        EXPECT_FALSE(label.box.overlaps(areas[0]) || label.box.overlaps(areas[1]));
        EXPECT_FALSE(clipped(lines[0], label.box));
    }
}

TEST(NameLabels, KeepAnEvasionWhileItIsAboutAsGood) {
    // The second label gives way; as its station comes free, it must not jump back and forth.
    std::array labels{vorLabel({272, 272}), vorLabel({272, 272})};
    placeLabels(labels, paper, {});
    ASSERT_NE(labels[0].turn, labels[1].turn);
    int jumps = 0;
    int turn = labels[1].turn;
    for (int step = 0; step < 200; ++step) {
        labels[1].station.x += (step % 2 == 0 ? 1.5 : -1) * 0.8;
        placeLabels(labels, paper, {});
        jumps += labels[1].turn != turn;
        turn = labels[1].turn;
    }
    EXPECT_LE(jumps, 4);
}

TEST(LineClipping, KeepsThePartOnThePaper) {
    constexpr Box area{0, 0, 100, 100};
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const std::tuple<Stroke, bool, Stroke> cases[] = {
        {{{10, 10}, {90, 20}}, true, {{10, 10}, {90, 20}}},
        {{{150, 50}, {-50, 50}}, true, {{100, 50}, {0, 50}}},
        {{{50, 50}, {50, 1e7}}, true, {{50, 50}, {50, 100}}},
        {{{-1e7, -1e7}, {50, 50}}, true, {{0, 0}, {50, 50}}},
        {{{-20, 100}, {40, 100}}, true, {{0, 100}, {40, 100}}},
        {{{-50, 50}, {50, -50}}, true, {{0, 0}, {0, 0}}},
        {{{30, 30}, {30, 30}}, true, {{30, 30}, {30, 30}}},
        {{{-10, 0}, {-10, 100}}, false, {}},
        {{{-60, 50}, {50, -61}}, false, {}},
        {{{101, 101}, {1e7, 1e7}}, false, {}},
        {{{nan, 0}, {50, 50}}, false, {}},
    };
    for (const auto& [line, found, part] : cases) {
        const auto visible = clipped(line, area);
        ASSERT_EQ(visible.has_value(), found) << line.from.x << ' ' << line.from.y;
        if (!found)
            continue;
        EXPECT_LT(Stroke(visible->from, part.from).length(), 1e-6);
        EXPECT_LT(Stroke(visible->to, part.to).length(), 1e-6);
    }
}

} // namespace
} // namespace tarnel
