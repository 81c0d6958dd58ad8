#include "window/frame/window_layout.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tarnel {
namespace {

struct Case {
    QSize body;
    PanelSizes sizes;
};

std::vector<Case> allCases() {
    std::vector<Case> cases;
    for (const QSize body :
         {QSize(960, 487), QSize(980, 606), QSize(1024, 714), QSize(1280, 746), QSize(1366, 700),
          QSize(1920, 1026), QSize(2560, 1380), QSize(3840, 2100)})
        for (const PanelSizes sizes : {PanelSizes{false, false}, PanelSizes{true, false},
                                       PanelSizes{false, true}, PanelSizes{true, true}})
            cases.push_back({body, sizes});
    return cases;
}

std::string nameOf(const Case& each) {
    return std::to_string(each.body.width()) + " x " + std::to_string(each.body.height()) +
           (each.sizes.inst2Large ? " large 2" : "") + (each.sizes.inst3Large ? " large 3" : "");
}

std::vector<QRect> panelParts(const WindowLayout& layout) {
    return {layout.headers[0],
            layout.headers[1],
            layout.instruments[0],
            layout.instruments[1],
            layout.nav1,
            layout.nav2,
            layout.adf,
            layout.dme,
            layout.stopwatch,
            layout.autopilot};
}

TEST(WindowLayout, NothingOverlapsOrLeavesItsPlaceAndAllHasTheSizeThatHandsAndEyesNeed) {
    constexpr double knobShare = 0.124;
    for (const Case& each : allCases()) {
        SCOPED_TRACE(nameOf(each));
        const WindowLayout layout = layOutWindow(each.body, each.sizes);
        const QRect body(QPoint(), each.body);
        EXPECT_TRUE(body.contains(layout.chart.united(layout.strip).united(layout.panel)));
        EXPECT_FALSE(layout.chart.intersects(layout.panel));
        EXPECT_FALSE(layout.chart.intersects(layout.strip));
        const std::vector<QRect> parts = panelParts(layout);
        const QRect panel(QPoint(), layout.panel.size());
        for (std::size_t i = 0; i < parts.size(); ++i) {
            EXPECT_TRUE(panel.contains(parts[i])) << i;
            for (std::size_t j = i + 1; j < parts.size(); ++j)
                EXPECT_FALSE(parts[i].intersects(parts[j])) << i << ' ' << j;
        }
        EXPECT_EQ(layout.chart.width(), layout.chart.height());
        EXPECT_GE(layout.strip.height(), 120);
        EXPECT_GE(layout.strip.width(), 384);
        EXPECT_GE(layout.nav1.height(), each.body.height() > 500 ? 70 : 64);
        for (const QRect& instrument : layout.instruments) {
            EXPECT_EQ(instrument.width(), instrument.height());
            EXPECT_TRUE(each.body.width() < 1024 || instrument.width() * knobShare >= 29.5);
        }
        const double ratio =
            static_cast<double>(layout.instruments[0].width()) / layout.instruments[1].width();
        EXPECT_TRUE(!each.sizes.inst2Large || each.sizes.inst3Large || each.body.height() < 700 ||
                    ratio > 1.1);
    }
}

// A comment stands in what the strip leaves. Where that does the chart keeps its size, and nothing
// else ever moves.
TEST(WindowLayout, ACommentTakesRoomFromTheChartOnlyWhereThereIsNoOther) {
    constexpr int strip = 128;
    for (const Case& each : allCases()) {
        const ColumnWishes quiet{.strip = [](int) { return strip; },
                                 .leastStrip = [](int) { return strip; }};
        const WindowLayout without = layOutWindow(each.body, each.sizes, quiet);
        EXPECT_TRUE(without.comment.isEmpty());
        for (const int wanted : {60, 130, 500}) {
            ColumnWishes wishes = quiet;
            wishes.comment = [wanted](int) { return wanted; };
            wishes.leastComment = [](int) { return 60; };
            const WindowLayout with = layOutWindow(each.body, each.sizes, wishes);
            EXPECT_EQ(with.panel, without.panel) << nameOf(each);
            EXPECT_EQ(panelParts(with), panelParts(without)) << nameOf(each);
            EXPECT_GE(with.strip.height(), strip) << nameOf(each);
            EXPECT_GT(with.strip.top(), with.chart.bottom()) << nameOf(each);
            EXPECT_GT(with.comment.top(), with.strip.bottom()) << nameOf(each);
            EXPECT_LT(with.comment.bottom(), each.body.height()) << nameOf(each);
            EXPECT_GE(with.comment.height(), 60) << nameOf(each);
            EXPECT_LE(with.comment.height(), wanted) << nameOf(each);
            if (each.body.height() >= 1000) {
                EXPECT_EQ(with.chart, without.chart) << nameOf(each);
            }
        }
    }
}

} // namespace
} // namespace tarnel
