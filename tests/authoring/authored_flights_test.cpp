#include "authoring/authored_flight.h"
#include "authoring/course_builder.h"
#include "authoring/manoeuvres.h"
#include "persistence/session_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace tarnel {
namespace {

constexpr const char* aloft =
    R"(station = "MUN", radial = 235, distance = 10, heading = 75, course = 60, wind = "300/25")";

TEST(Pilot, TurnsTheWayThatIsSaidAndEndsWhereItWasForetold) {
    const struct {
        double heading;
        Turn turn;
        double degrees;
    } turns[] = {{95, Turn::right, 20},   {95, Turn::left, 0},       {85, Turn::right, 350},
                 {100, Turn::left, -345}, {300, Turn::left, -160},   {300, Turn::shorter, 0},
                 {120, Turn::right, 180}, {299, Turn::shorter, 179}, {310, Turn::shorter, 11}};
    const CourseSource course = courseOf("hsi", aloft);
    PilotInFlight flown(course);
    Pilot& pilot = flown.pilot;
    pilot.wait(5);
    for (const auto& [heading, turn, degrees] : turns) {
        const FromStation foretold = pilot.afterTurn(Slot::vor1, heading, turn);
        const std::size_t begun = pilot.rows().size();
        pilot.turnTo(heading, turn);
        double turned = 0;
        for (std::size_t tick = begun; tick < pilot.rows().size(); ++tick)
            turned += turnBetween(pilot.rows()[tick - 1].heading, pilot.rows()[tick].heading);
        EXPECT_NEAR(turned, degrees, 1e-6) << heading;
        const FromStation found = pilot.from(Slot::vor1);
        EXPECT_NEAR(found.alongTrack(0), foretold.alongTrack(0), 0.05) << heading;
        EXPECT_NEAR(found.crossTrack(0), foretold.crossTrack(0), 0.05) << heading;
    }
}

TEST(WindTriangle, IsThatOfTheBooks) {
    const struct {
        Wind wind;
        double course, tas, correction, groundSpeed;
    } books[] = {{{30, 20}, 0, 100, 5.74, 82.2},    {{90, 20}, 0, 120, 9.59, 118.3},
                 {{270, 20}, 0, 120, -9.59, 118.3}, {{210, 30}, 210, 120, 0, 90},
                 {{30, 30}, 210, 120, 0, 150},      {{0, 0}, 77, 120, 0, 120}};
    for (const auto& [wind, course, tas, correction, groundSpeed] : books) {
        const WindTriangle found = windTriangle(wind, course, tas);
        EXPECT_NEAR(found.correction, correction, 0.01) << wind.direction;
        EXPECT_NEAR(found.groundSpeed, groundSpeed, 0.1) << wind.direction;
    }
    EXPECT_TRUE(std::isnan(windTriangle({90, 50}, 0, 40).correction));
}

TEST(Holding, IsEnteredByItsSectors) {
    const struct {
        double heading, inbound;
        Turn turns;
        const char* entry;
        double first;
        const char* side;
    } sectors[] = {{90, 0, Turn::right, "direct", 180, "right"},
                   {150, 0, Turn::right, "offset", 150, "maintain"},
                   {270, 0, Turn::right, "parallel", 180, "left"},
                   {90, 0, Turn::left, "parallel", 180, "right"},
                   {200, 0, Turn::left, "offset", 210, "right"},
                   {270, 0, Turn::left, "direct", 180, "left"},
                   {110, 0, Turn::right, "direct", 180, "right"},
                   {111, 0, Turn::right, "offset", 150, "right"},
                   {181, 0, Turn::right, "parallel", 180, "left"},
                   {290, 0, Turn::right, "direct", 180, "right"},
                   {320, 250, Turn::left, "direct", 70, "left"},
                   {321, 250, Turn::left, "parallel", 70, "right"}};
    for (const auto& [heading, inbound, turns, entry, first, side] : sectors) {
        const HoldingAnswer found = answerOf({.inbound = inbound, .turns = turns}, heading);
        EXPECT_EQ(found.entry, entry) << heading;
        EXPECT_EQ(found.firstHeading, first) << heading;
        EXPECT_EQ(found.firstTurn, side) << heading;
    }
}

/// What a wind, a speed or a direction makes hard. The check of courses holds the legs to their
/// minute, the arcs to their distance and the ends to their courses.
constexpr const char* hard[][2] = {
    {"hsihld", R"(station = "MAH", distance = 1.5, heading = 75, inbound = 280, turns = "right",
        wind = "230/15")"},
    {"hsihld", R"(station = "MAH", distance = 6, heading = 90, inbound = 165, turns = "right",
        tas = 100)"},
    {"hsihld",
     R"(station = "MAH", distance = 2, heading = 295, inbound = 165, turns = "right",
        wind = "110/20")"},
    {"dghld",
     R"(station = "MNE", distance = 3, heading = 155, inbound = 330, turns = "left",
        wind = "010/10")"},
    {"dghld",
     R"(station = "MNW", distance = 2, heading = 165, inbound = 40, turns = "left",
        wind = "050/10", tas = 100)"},
    {"dghld",
     R"(station = "MNE", distance = 3, heading = 310, inbound = 110, turns = "right",
        wind = "250/15", tas = 140)"},
    {"wind", R"(station = "MAH", inbound = 20, turns = "left", wind = "210/20", tas = 100)"},
    {"wind", R"(station = "MAH", inbound = 45, turns = "left", wind = "120/10")"},
    {"dmearc",
     R"(station = "MUN", radial = 165, distance = 5, arc = 8, final = 35, sense = "clockwise",
        wind = "330/25")"},
    {"dmearc",
     R"(station = "MUN", radial = 265, distance = 10, arc = 7, final = 135, sense = "clockwise",
        wind = "100/30")"},
    {"dmearc",
     R"(station = "MAH", radial = 285, distance = 5, arc = 8, final = 345, sense = "counterclockwise",
        wind = "120/20")"},
    {"qdm",
     R"(station = "MUN", radial = 210, distance = 10, heading = 70, required = 15,
        wind = "230/30", tas = 100)"},
    {"qdr",
     R"(station = "MAH", radial = 240, distance = 5, heading = 20, required = 270,
        wind = "110/30", tas = 150)"},
};

/// Both where a flight begins and where it ends.
void expectStationOnChart(const SessionFile& session, const GeoPosition& station) {
    constexpr double halfPaper = 6810 / 2.0; // twips
    double farthest = 0;                     // NM
    for (const Sample* at : {&session.samples.front(), &session.samples.back()})
        farthest = std::max(farthest, fromStation(station, {at->traceLat, at->traceLon}).distance);
    EXPECT_LT(farthest * *session.mapScaleTwips, halfPaper);
    EXPECT_GT(farthest * *session.mapScaleTwips, halfPaper / 4);
}

TEST(AuthoredFlights, ReachTheirEndOnTheirChart) {
    for (const auto& [exercise, situation] : hard) {
        SCOPED_TRACE(situation);
        const CourseSource course = courseOf(exercise, situation);
        const BuiltCourse built = buildCourse(course, TARNEL_DATA_FOLDER);
        for (const SourceFinding& finding : built.findings)
            EXPECT_EQ(finding.line, 0) << finding.text;
        expectStationOnChart(readSession(built.files.front().bytes),
                             course.chart.position(course.situations.front().station));
    }
}

TEST(AuthoredFlights, TellHowAnArcGoes) {
    constexpr double longest = 110; // seconds without a word
    const CourseSource course = courseOf("dmearc", hard[9][1]);
    PilotInFlight flown(course);
    course.questions->solve(flown.pilot, course.situations.front());
    const std::vector<SaidComment>& said = flown.pilot.said();
    for (std::size_t i = 1; i < said.size(); ++i)
        EXPECT_LT(static_cast<double>(said[i].tick - said[i - 1].tick) / 3, longest)
            << said[i - 1].text.english;
}

} // namespace
} // namespace tarnel
