#include "core/sailing.h"
#include "persistence/file_problem.h"
#include "tracks/flown_track.h"
#include "tracks/track_reader.h"
#include "tracks/track_to_fly.h"
#include "tracks/track_writer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <functional>

namespace tarnel {

bool operator==(const TrackPoint& one, const TrackPoint& other) {
    return std::abs(one.seconds - other.seconds) < 0.0006 &&
           std::abs(one.position.latitude - other.position.latitude) < 1e-9 &&
           std::abs(one.position.longitude - other.position.longitude) < 1e-9 &&
           std::abs(one.altitude.value_or(-1) - other.altitude.value_or(-1)) < 0.1;
}

namespace {

using testing::ElementsAre;

TrackPoint point(double seconds, double latitude, double longitude,
                 std::optional<double> altitude = {}) {
    return {seconds, {latitude, longitude}, altitude, {}, {}};
}

/// Line and kind of what is wrong.
FileProblem problemOf(const std::function<void()>& read) {
    try {
        read();
    } catch (const FileProblem& problem) {
        return problem;
    }
    ADD_FAILURE() << "taken";
    return {};
}

std::string gpxWith(const std::string& points) {
    return "<gpx><trk><trkseg>\n" + points + "</trkseg></trk></gpx>";
}

TEST(TrackFiles, AFlightComesBackAsItWasFlown) {
    std::vector<Sample> samples(3);
    samples[0].traceLat = -0.25;
    samples[0].traceLon = 190;
    samples[1].traceLat = 48.123456789;
    samples[1].traceLon = 179.9999999999;
    samples[2].traceLat = 1e-7;
    samples[2].traceLon = -11.5;
    for (Sample& sample : samples)
        sample.traceAPalt = 6000;
    constexpr std::int64_t lastSecondOfFebruary = 1'709'251'199; // of a leap year
    const Track flown = flownTrack(samples, "A <&> \xC3\xB6", lastSecondOfFebruary);
    for (const TrackFormat format : {TrackFormat::gpx, TrackFormat::csv}) {
        const std::string bytes = writeTrack(flown, format);
        EXPECT_THAT(bytes, testing::HasSubstr("2024-02-29T23:59:59.000Z"));
        EXPECT_THAT(bytes, testing::HasSubstr("2024-03-01T00:00:00.333Z"));
        const Track read = readTrack(bytes);
        EXPECT_EQ(read.start, lastSecondOfFebruary);
        EXPECT_EQ(read.name, format == TrackFormat::gpx ? flown.name : "");
        EXPECT_THAT(read.points, ElementsAre(point(0, -0.25, -170, 6000),
                                             point(4.0 / 3, 48.123456789, -180, 6000),
                                             point(8.0 / 3, 1e-7, -11.5, 6000)));
    }
}

TEST(TrackFiles, TablesOfOtherProgramsAreRead) {
    EXPECT_THAT(
        readTrack("\xEF\xBB\xBF# logged\r\n\r\nName;Latitude (deg);Long;Timestamp;Alt (m)\r\n"
                  "a;48,5;\"11,25\";2026-05-01 14:00:00,5+02:00;1000\r\n\r\n"
                  "a;48,5;11,25;2026-05-01T12:00:00.5Z;1000\r\n"
                  "b;48,6;11;2026-05-01T12:00:02Z;\r\n")
            .points,
        ElementsAre(point(0.5, 48.5, 11.25, 3280.84), point(2, 48.6, 11)))
        << "a point of the same time adds nothing";
    EXPECT_THAT(readTrack("\"note, seen\",seconds,lat,lon\n\"1,2\",7,1,2\n,8.5,1,3").points,
                ElementsAre(point(0, 1, 2), point(1.5, 1, 3)));
}

TEST(TrackFiles, OnlyTheFirstTrackIsTakenAndNothingWithinExtensions) {
    const std::string at = R"(<trkpt lat="1" lon="2"><time>2026-05-01T12:00:0)";
    const Track track = readTrack(
        "<g:gpx xmlns:g='u'><g:wpt lat='9' lon='9'/><trk><name> empty </name></trk><trk><trkseg>" +
        at + "1Z</time><extensions><time>x</time></extensions></trkpt></trkseg><trkseg>" + at +
        "2Z</time></trkpt></trkseg></trk><trk><trkseg>" + at +
        "0Z</time></trkpt></trkseg></trk></g:gpx>");
    EXPECT_THAT(track.points, ElementsAre(point(0, 1, 2), point(1, 1, 2)));
}

TEST(TrackFiles, WhatIsWrongIsNamedWithItsLine) {
    const std::string noon = "<time>2026-05-01T12:00:00Z</time></trkpt>\n";
    const std::string good = R"(<trkpt lat="1" lon="2">)" + noon;
    const struct {
        std::string bytes;
        FileProblem problem;
    } rows[] = {
        {"", {1, FileField::trackColumns, true}},
        {"time,lat\n1,2\n", {1, FileField::trackColumns}},
        {"time,lat,lon\n1,2,3\n", {3, FileField::trackPoint, true}},
        {"time,lat,lon\n1,2,3\n\n2,2\n", {4, FileField::longitude}},
        {"time,lat,lon\n1,90.1,3\n", {2, FileField::latitude}},
        {"time,lat,lon\n2026-02-29T12:00:00Z,1,3\n", {2, FileField::time}},
        {"time,lat,lon\n1e300,1,3\n", {2, FileField::time}},
        {"time,lat,lon\n2,2,3\n1,2,3\n", {3, FileField::laterTime}},
        {"<kml>\n</kml>", {1, FileField::gpx}},
        {"<!DOCTYPE gpx [<!ENTITY a SYSTEM 'file:///etc/passwd'>]>\n" + gpxWith(good),
         {1, FileField::gpx}},
        {"<gpx>\n<trk>", {2, FileField::gpx}},
        {gpxWith(good), {4, FileField::trackPoint, true}},
        {gpxWith(good + "<trkpt lat='1' lon='2'>\n</trkpt>"), {4, FileField::time}},
        {gpxWith("\n<trkpt lat='1' lon='x'>" + noon), {3, FileField::longitude}},
        {gpxWith("<trkpt lat='1' lon='361'>" + noon), {2, FileField::longitude}},
    };
    for (const auto& row : rows)
        EXPECT_EQ(problemOf([&] { (void)readTrack(row.bytes); }), row.problem) << row.bytes;
    std::string endless = "time,lat,lon\n";
    for (int i = 0; i <= 100'000; ++i)
        endless += std::to_string(i) + ",1,2\n";
    EXPECT_EQ(problemOf([&] { (void)readTrack(endless); }),
              (FileProblem{100'002, FileField::noFurtherTrackPoint}));
}

/// A track on `course` with a point every `step` seconds.
class TrackBeingFlown {
  public:
    TrackBeingFlown& fly(double knots, double seconds, double step) {
        for (double flown = 0; flown < seconds; flown += step) {
            track.points.push_back(point(now, place.latitude, place.longitude, 2000));
            track.points.back().line = static_cast<int>(track.points.size());
            place = DeadReckon(toSplit(place), knots * step / 3600, course).plain;
            now += step;
        }
        return *this;
    }
    Track track;
    double now = 0;
    double course = 300;
    GeoPosition place{48, 11};
};

TEST(TracksToFly, HaveAPlaceForEachSampleOfTheFlight) {
    TrackBeingFlown logged;
    const TrackToFly found =
        trackToFly(logged.fly(12, 300, 5).fly(120, 400, 7).fly(90, 200, 0.9).fly(0, 60, 30).track);
    ASSERT_NEAR(static_cast<double>(found.moments.size()), 600 * 3 / 4.0, 7);
    EXPECT_FALSE(found.cut);
    EXPECT_EQ(found.moments[100].altitude, 2000);
    const GeoPosition fromHere = found.moments[100].position;
    const CourseDistance leg = CourseAndDistance(fromHere, found.moments[190].position);
    EXPECT_NEAR(leg.distance, 4, 0.001) << "two minutes at 120 knots";
    EXPECT_NEAR(leg.course + 360, 300, 0.05);
    EXPECT_NEAR(found.moments[100].course, 300, 0.05);
    EXPECT_NEAR(found.moments[100].speed, 120, 0.2);
    EXPECT_NEAR(found.moments[400].speed, 90, 0.2);
    EXPECT_GE(found.moments.front().speed, 50);
    EXPECT_GE(found.moments.back().speed, 50);
}

TEST(TracksToFly, AreRefusedOrCutWhereNobodyCanFollow) {
    const auto problem = [](const TrackBeingFlown& flown) {
        return problemOf([&] { (void)trackToFly(flown.track); });
    };
    TrackBeingFlown gap = TrackBeingFlown().fly(100, 10, 1);
    gap.now += 61;
    EXPECT_EQ(problem(gap.fly(100, 10, 1)), (FileProblem{11, FileField::nearTime}));
    EXPECT_EQ(problem(TrackBeingFlown().fly(100, 20, 2).fly(520, 20, 2)),
              (FileProblem{12, FileField::groundSpeed}));
    EXPECT_EQ(problem(TrackBeingFlown().fly(48, 20, 2)), (FileProblem{10, FileField::flight}));
    TrackBeingFlown polar;
    polar.place.latitude = 70.01;
    EXPECT_EQ(problem(polar.fly(100, 20, 2)), (FileProblem{1, FileField::practiseArea}));
    const TrackToFly longest = trackToFly(TrackBeingFlown().fly(60, 9000, 30).track);
    EXPECT_TRUE(longest.cut);
    EXPECT_EQ(longest.moments.size(), 5979U);
}

} // namespace
} // namespace tarnel
