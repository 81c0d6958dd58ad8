#include "chart/trace_dots.h"

#include <gtest/gtest.h>

namespace tarnel {
namespace {

class TraceDotsTest : public testing::Test {
  protected:
    /// A flight that stands at 49 north, 11 east after all samples but the first.
    void record(int count) {
        while (recording.sampleIndex() < count)
            recording.advance();
        for (int i = 1; i <= count; ++i) {
            recording.edit(i).traceLat = 49;
            recording.edit(i).traceLon = 11;
        }
        recording.edit(1).traceLat = 49.1;
    }
    std::size_t dots() const { return picture.trace.all().size(); }

    ChartPicture picture;
    MapView view;
    Recording recording;
};

TEST_F(TraceDotsTest, AreThinnedByTheScale) {
    struct Case {
        std::int16_t scale;
        std::size_t last; ///< of the last thousand
        std::size_t all;  ///< of 1500
    };
    constexpr Case cases[] = {{125, 63, 94},   {250, 126, 188},  {333, 167, 250},
                              {500, 251, 375}, {1000, 501, 750}, {32000, 1001, 1500}};
    record(1500);
    for (const Case& c : cases) {
        view.plot.mapScaleTwips = c.scale;
        DeleteTrace(picture);
        DrawTrace2(picture, view, recording, 0);
        EXPECT_EQ(dots(), c.last) << c.scale;
        DrawReplayTrace(picture, view, recording, 0);
        EXPECT_EQ(dots(), c.all) << c.scale;
    }
}

TEST_F(TraceDotsTest, StandWhereTheAircraftWas) {
    record(20);
    DrawTrace2(picture, view, recording, 270); // the heading does not turn a north-up chart
    ASSERT_EQ(dots(), 3U);
    EXPECT_EQ(picture.trace.all()[0].x, 3405);
    EXPECT_NEAR(picture.trace.all()[0].y, 3405 - 6.004 * 250, 3);
    EXPECT_EQ(picture.trace.all()[1].y, 3405);
}

TEST_F(TraceDotsTest, KeepOffTheUpperAndLeftEdgeWithTheHeadingUp) {
    view.northUpMode = false;
    view.plot.mapScaleTwips = 1000;
    record(3);                                      // 1 and 3 are drawn
    recording.edit(1).traceLat = 49 + 3.19 / 60.04; // 215 twips from the edge
    recording.edit(3).traceLat = 49 + 3.22 / 60.04; // 185
    const std::pair<double, std::size_t> cases[] = {{0, 1}, {90, 1}, {180, 2}, {270, 2}};
    for (const auto& [heading, drawn] : cases) {
        DrawReplayTrace(picture, view, recording, heading);
        EXPECT_EQ(dots(), drawn) << heading;
    }
    view.northUpMode = true;
    DrawReplayTrace(picture, view, recording, 0);
    EXPECT_EQ(dots(), 2U);
}

} // namespace
} // namespace tarnel
