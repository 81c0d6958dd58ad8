#include "core/radios.h"
#include "core/speed_vectors.h"

#include <gtest/gtest.h>

#include <vector>

namespace tarnel {
namespace {

constexpr std::size_t vor1 = 0;
constexpr std::size_t ndb1 = 2;
constexpr std::size_t localizer = 4;
constexpr std::int16_t scales[] = {125, 167, 250, 333, 500, 1000};

/// Stations and an aircraft on one chart.
class RadiosTest : public testing::Test {
  protected:
    void putOnChart() {
        for (Station& station : stations)
            plot.GeoToMap(toPlain(station.position), station.place);
        plot.GeoToMap(toPlain(aircraft.position), aircraft.place);
    }
    RadioReadings measure() {
        putOnChart();
        inputs.mapScaleTwips = plot.mapScaleTwips;
        return measureRadios(stations, aircraft, inputs);
    }

    Chartsubmodul1 plot;
    Stations stations = defaultStations();
    Aircraft aircraft;
    RadioInputs inputs;
};

TEST_F(RadiosTest, OverTheStationTheDmeReadsTheHeight) {
    aircraft.placeAt(stations[vor1].position);
    RadioReadings readings = measure();
    EXPECT_EQ(readings.radial[vor1], 0);
    EXPECT_EQ(readings.dme[vor1], 0);
    inputs.altitude = 10000;
    EXPECT_EQ(measure().dme[vor1], 1.6); // 1.6447
    stations[vor1].position = {{49, 2}, {11, 0}};
    aircraft.placeAt(SplitPosition{{49, 0}, {11, 0}});
    EXPECT_EQ(measure().dme[vor1], 2.6); // 2 along the ground
}

TEST_F(RadiosTest, RadialIsTheBearingFromTheStation) {
    // Off the reference point by miles, seen from it.
    const std::pair<SplitPosition, double> cases[] = {
        {{{49, 10}, {11, 0}}, 180},
        {{{48, 50}, {11, 0}}, 0},
        {{{49, 0}, {11, 15}}, 270},
        {{{49, 0}, {10, 45}}, 90},
    };
    for (const auto& [station, radial] : cases) {
        stations[vor1].position = station;
        stations[ndb1].position = station;
        const RadioReadings readings = measure();
        EXPECT_NEAR(readings.radial[vor1], radial, 0.05);
        EXPECT_EQ(readings.radial[ndb1], readings.radial[vor1]);
        EXPECT_EQ(readings.dme[ndb1], 0); // an NDB has none
    }
}

TEST_F(RadiosTest, FarStationsKeepTheirTrueRadialAtEveryScale) {
    stations[vor1].position = {{49, 50}, {12, 30}};
    const CourseDistance away = CourseAndDistance({49, 11}, toPlain(stations[vor1].position));
    for (const std::int16_t scale : scales) {
        plot.mapScaleTwips = scale;
        const RadioReadings readings = measure();
        EXPECT_NEAR(readings.radial[vor1], away.course + 180, 0.01) << scale;
        EXPECT_NEAR(readings.dme[vor1], away.distance, 0.06) << scale;
    }
}

TEST_F(RadiosTest, DmeSpeedIsTheShareAlongTheLine) {
    const std::pair<std::int16_t, std::int16_t> cases[] = {{360, 120}, {180, 120}, {90, 0},
                                                           {270, 0},   {60, 60},   {135, 85}};
    stations[vor1].position = {{49, 20}, {11, 0}};
    inputs.groundSpeed = 120;
    for (const auto& [track, speed] : cases) {
        inputs.groundTrack = track;
        EXPECT_EQ(measure().dmeGroundSpeed[vor1], speed) << track;
    }
    EXPECT_EQ(measure().dmeGroundSpeed[ndb1], 0);
}

TEST_F(RadiosTest, LocalizerRadialIsMeasuredOnTheEarth) {
    const std::pair<SplitPosition, double> cases[] = {
        {{{49, 4}, {11, 21}}, 90}, {{{48, 54}, {11, 6}}, 180}, {{{49, 4}, {10, 51}}, 270}};
    for (const auto& [position, radial] : cases) {
        aircraft.placeAt(position);
        EXPECT_NEAR(measure().radial[localizer], radial, 0.0001) << radial;
    }
    aircraft.placeAt(SplitPosition{{49, 14}, {11, 6}}); // straight north: 180 + 180
    EXPECT_EQ(measure().radial[localizer], 360);
    const GeoPosition station = toPlain(stations[localizer].position);
    EXPECT_EQ(aircraft.posLat, station.latitude);
    EXPECT_EQ(aircraft.posLon, station.longitude);
    EXPECT_EQ(aircraft.aircraftLat, toPlain(SplitAngle{49, 14}));
}

TEST(SpeedVectors, ReadTrackAndSpeedAtEveryScale) {
    const std::tuple<double, std::int16_t, double, std::int16_t, std::int16_t, std::int16_t>
        cases[] = {
            {0, 120, 0, 0, 360, 120},     {90, 120, 0, 0, 90, 120},   {180, 120, 0, 0, 180, 120},
            {270, 120, 0, 0, 270, 120},   {45, 100, 0, 0, 45, 100},   {0, 0, 0, 0, 360, 0},
            {0, 120, 180, 20, 360, 100},  {0, 120, 90, 120, 45, 170}, {0, 0, -150, 30, 210, 30},
            {300, 90, -60, 30, 300, 120},
        };
    std::vector<std::int16_t> all(std::begin(scales), std::end(scales));
    all.push_back(1); // of a chart that frames stations far apart
    for (const std::int16_t scale : all) {
        for (const auto& [heading, tas, windCourse, windSpeed, track, speed] : cases) {
            const SpeedVectors read =
                layOutSpeedVectors({3405, 3405}, heading, tas, windCourse, windSpeed, scale);
            EXPECT_EQ(read.groundTrack, track) << heading << " at " << scale;
            EXPECT_NEAR(read.groundSpeed, speed, 1) << heading << " at " << scale;
        }
    }
}

TEST(SpeedVectors, StandOnTheAirplane) {
    // 2083 twips for 120 knots, wherever the airplane is.
    const SpeedVectors read = layOutSpeedVectors({100000, -50000}, 90, 120, 180, 60, 250);
    EXPECT_EQ(read.airTip, (Point{102083, -50000}));
    EXPECT_EQ(read.windTip, (Point{102083, -48958}));
}

} // namespace
} // namespace tarnel
