#include "chart/map_view.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cmath>

namespace tarnel {
namespace {

TEST(MapView, ScaleLabelIsMilesPer500Twips) {
    const std::pair<std::int16_t, double> cases[] = {{125, 4},   {167, 3}, {250, 2},
                                                     {333, 1.5}, {500, 1}, {1000, 0.5}};
    MapView view;
    for (const auto& [twips, miles] : cases) {
        view.plot.mapScaleTwips = twips;
        EXPECT_DOUBLE_EQ(view.scaleLabelMiles(), miles);
    }
}

TEST(MapView, CentreSelectTakesAircraftOrStation) {
    const Stations stations = defaultStations();
    Aircraft aircraft;
    aircraft.placeAt(SplitPosition{{48, 30}, {10, 15}});
    aircraft.posLat = 0; // scratch, not to be read
    const SplitPosition before{{47, 0}, {9, 0}};
    for (const std::int16_t select : {std::int16_t{-1}, std::int16_t{0}, std::int16_t{1},
                                      std::int16_t{2}, std::int16_t{6}, std::int16_t{7}}) {
        const SplitPosition expected = select == 1 ? aircraft.position
                                       : select >= 2 && select <= 6
                                           ? stations[static_cast<std::size_t>(select - 2)].position
                                           : before;
        MapView view;
        view.centreOn(before);
        view.MapCenterSelect(select, toSplit(aircraft.published()), stations);
        EXPECT_EQ(view.mapCenter, expected) << select;
        EXPECT_EQ(view.plot.mapRef, expected) << select;

        MapView headingUp;
        headingUp.northUpMode = false;
        headingUp.centreOn(before);
        headingUp.MapCenterSelect(select, toSplit(aircraft.published()), stations);
        EXPECT_EQ(headingUp.mapCenter, expected) << select;
        EXPECT_EQ(headingUp.plot.mapRef, before) << select;
    }
}

RC_GTEST_PROP(MapView, HeadingUpTurnsEveryBearingByTheHeading, ()) {
    MapView view;
    view.northUpMode = false;
    view.plot.mapScaleTwips = *rc::gen::element<std::int16_t>(125, 250, 1000);
    const double heading = *rc::gen::inRange(0, 3600) / 10.0;
    const GeoPosition there{49 + *rc::gen::inRange(-600, 600) / 1000.0,
                            11 + *rc::gen::inRange(-900, 900) / 1000.0};
    const CourseDistance leg = CourseAndDistance({49, 11}, there);
    RC_PRE(leg.distance > 2);
    ChartPlace place;
    view.placeOnChart(there, view.rotation(heading), place);
    const Polar seen = polarOf(place.wide.x - 3405, 3405 - place.wide.y, view.plot.mapScaleTwips);
    // Half a twip each for the two roundings, seen from 250 twips or more.
    RC_ASSERT(std::abs(std::remainder(seen.course - (leg.course - heading), 360)) < 0.35);
    RC_ASSERT(std::abs(seen.distance - leg.distance) < 0.02);
}

TEST(MapView, AircraftStandsOnTheReferencePointWithTheHeadingUp) {
    MapView view;
    view.plot.mapRefX = view.plot.mapRefY = 2000;
    Aircraft aircraft;
    aircraft.placeAt(SplitPosition{{49, 10}, {11, 0}});
    view.placeAircraft(aircraft);
    EXPECT_LT(aircraft.place.point.y, 0); // 10 miles up the chart
    view.northUpMode = false;
    view.placeAircraft(aircraft);
    EXPECT_EQ(aircraft.place.point, (ChartPoint{2000, 2000}));
    EXPECT_EQ(aircraft.place.wide, (Point{2000, 2000}));
    EXPECT_EQ(view.plot.mapRef, aircraft.position);
}

} // namespace
} // namespace tarnel
