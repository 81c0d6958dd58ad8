#include "chart/chart_framing.h"
#include "chart/map_view.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace tarnel {
namespace {

constexpr double paper = 6810;

struct Layout {
    std::string name;
    std::array<GeoPosition, slotCount> at;
    double locCourse;
};

const Layout layouts[] = {
    {"wide",
     {{{48.180302, 11.816},
       {48.263401, 11.3119},
       {48.374298, 11.914099},
       {48.3554, 11.676},
       {48.3624, 11.7629}}},
     83},
    {"tall", {{{46, 15}, {46.4, 15.1}, {46.8, 14.9}, {46.2, 15}, {46.9, 15.05}}}, 340},
    {"together", {{{50, 7}, {50.01, 7}, {50, 7.01}, {50.01, 7.01}, {50, 7.02}}}, 180},
    {"far apart", {{{48, 8}, {50, 14}, {51, 9}, {47, 12}, {49, 11}}}, 270},
};

Stations stationsOf(const Layout& layout) {
    Stations stations = defaultStations();
    for (std::size_t i = 0; i < slotCount; ++i)
        stations[i].position = toSplit(layout.at[i]);
    return stations;
}

/// Where `position` stands on a chart with that framing.
Point placed(const ChartFraming& framing, const GeoPosition& position, int zoomed) {
    Chartsubmodul1 plot;
    plot.mapRef = framing.centre;
    plot.mapScaleTwips = static_cast<std::int16_t>(framing.scale + zoomed);
    ChartPlace place;
    plot.GeoToMap(position, place);
    return place.wide;
}

/// Whether all stations stand on the paper with the room that a rose takes, and the last 8 miles of
/// the localizer's approach too, clear of the switches above and of a starting aircraft below.
bool allShown(const Layout& layout, const ChartFraming& framing, int zoomed) {
    const auto shown = [&](const GeoPosition& position, double room) {
        const Point at = placed(framing, position, zoomed);
        return at.x >= room && at.x <= paper - room && at.y >= room + 440 &&
               at.y <= paper - room - 840;
    };
    double course = layout.locCourse;
    const GeoPosition outside = DeadReckon(toSplit(layout.at[4]), 8, course).plain;
    return std::all_of(layout.at.begin(), layout.at.end(),
                       [&](const GeoPosition& at) { return shown(at, 550); }) &&
           shown(outside, 140);
}

TEST(ChartFraming, ShowsAllStationsAndTheApproachAsLargeAsTheyFit) {
    for (const Layout& layout : layouts) {
        const ChartFraming framing =
            framingOf(framedStations(stationsOf(layout), layout.locCourse), {paper});
        EXPECT_TRUE(allShown(layout, framing, 0)) << layout.name << ' ' << framing.scale;
        EXPECT_FALSE(allShown(layout, framing, framing.scale / 10)) << layout.name;
        EXPECT_LE(framing.scale, 1000) << layout.name;
    }
}

TEST(ChartFraming, ASinglePlaceStandsInTheFreePaperAtTheLargestScale) {
    const FramedPlace place{{48, 11}, 300};
    const ChartFraming framing = framingOf({&place, 1}, {paper});
    EXPECT_EQ(framing.scale, 1000);
    const Point at = placed(framing, place.position, 0);
    EXPECT_NEAR(at.x, paper / 2, 15);
    EXPECT_NEAR(at.y, paper / 2 - 200, 15); // more is kept free below than above
}

} // namespace
} // namespace tarnel
