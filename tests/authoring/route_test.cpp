#include "authoring/course_builder.h"
#include "authoring/route.h"
#include "persistence/session_file.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>

namespace tarnel {
namespace {

constexpr const char* flightInWind = R"(flight = "x"
chart = "default"
start = { station = "MNE", radial = 250, distance = 4, heading = 70, wind = "340/30", adf = "MNE", left = { type = "ADF" }, right = { type = "DG" } }
leg = [
  { fly = "home", station = "MNE", de = "hin", en = "there" },
  { fly = "straight", seconds = 60, stopwatch = true, de = "{heading}", en = "{heading}" },
  { fly = "intercept", station = "MNE", course = 85, angle = 45, de = "a", en = "a", de_turn = "{clock}: {lead}, {relative:MNE}", en_turn = "{clock}: {lead}, {relative:MNE}" },
  { fly = "straight", seconds = 9, de = "{distance:MNE}", en = "{distance:MNE}" },
])";

TEST(Route, HomesInWindAndTellsWhereItTurns) {
    const Route route = readRoute(flightInWind, "x.toml", ChartShelf({TARNEL_DATA_FOLDER}));
    const BuiltCourse built = buildFlight(route, TARNEL_DATA_FOLDER);
    EXPECT_THAT(built.findings, testing::IsEmpty());
    ASSERT_EQ(built.files.size(), 2U);
    const SessionFile session = readSession(built.files.back().bytes);
    EXPECT_EQ(session.mapCenterSelect, 5); // where it begins and ends lies to both sides of MNE
    const GeoPosition centre = route.chart.position(*route.chart.slotOf("MNE"));
    double reach = 0; // NM to either side
    for (const Sample& sample : session.samples)
        reach = std::max({reach, std::abs(sample.traceLat - centre.latitude) * 60,
                          std::abs(sample.traceLon - centre.longitude) * 60 * 0.664});
    EXPECT_NEAR(2 * reach * session.mapScaleTwips.value(), 0.8 * 6810, 120)
        << "four fifths of the paper";
    // Homing turns into the wind from 340; a course held straight would have led there on 070.
    EXPECT_THAT(session.comments,
                testing::ElementsAre(
                    "there", testing::AllOf(testing::Gt("000"), testing::Lt("040")), "a",
                    testing::AllOf(testing::MatchesRegex(".:..: .+, .+"), testing::Lt("2")),
                    testing::AllOf(testing::Gt("0"), testing::Lt(":"))));
}

/// The last thing said on a flight over the default chart.
LocalText lastWord(const std::string& start, const std::string& legs) {
    const Route route = readRoute("flight = \"x\"\nchart = \"default\"\nstart = { " + start +
                                      " }\nleg = [ " + legs + " ]",
                                  "x.toml", ChartShelf({TARNEL_DATA_FOLDER}));
    ScriptedFlight flight(route.start, englishTable(), TARNEL_DATA_FOLDER);
    Pilot pilot(flight, route.chart);
    for (const RouteLeg& leg : route.legs)
        flyLeg(pilot, leg);
    return pilot.said().back().text;
}

TEST(Route, PutsTheReadingOfTheMomentInPlaceOfAMark) {
    // A minute on heading 240 at 120 knots, from 10 NM east of the station, 6,000 ft up.
    const std::string marks = "{heading} {clock} {radial:MUN} {qdm:MUN} {relative:MUN} "
                              "{distance:MUN} {dme:MUN} {";
    const LocalText read = lastWord(R"(station = "MUN", radial = 90, distance = 10, heading = 240)",
                                    R"({ fly = "straight", seconds = 60, stopwatch = true },
                    { fly = "straight", seconds = 1, de = ")" +
                                        marks + R"(", en = ")" + marks + R"(" })");
    EXPECT_EQ(read.german, "240 1:00 097 277 037 8,3 8,4 {");
    EXPECT_EQ(read.english, "240 1:00 097 277 037 8.3 8.4 {");
    // 5.2 NM south of the station a turn through 90 degrees takes 0.65 NM.
    const LocalText turn =
        lastWord(R"(station = "MUN", radial = 150, distance = 6, heading = 270)",
                 R"({ fly = "intercept", station = "MUN", course = 360, angle = 90, )"
                 R"(de_turn = "{lead} {radial:MUN}", en_turn = "{lead} {radial:MUN}" })");
    EXPECT_EQ(turn.english, "7 173");
}

TEST(Route, TurnsAtOnceWhereTheTurnIsOverdue) {
    const BuiltCourse built = buildFlight(readRoute(R"(flight = "x"
chart = "default"
start = { station = "MUN", radial = 179, distance = 8, heading = 330 }
leg = [
  { fly = "straight", seconds = 4, stopwatch = true, de = "a", en = "a" },
  { fly = "intercept", station = "MUN", course = 360, de_turn = "{clock}", en_turn = "{clock}" },
])",
                                                    "x.toml", ChartShelf({TARNEL_DATA_FOLDER})),
                                          TARNEL_DATA_FOLDER);
    EXPECT_THAT(readSession(built.files.back().bytes).comments,
                testing::ElementsAre("a", testing::AnyOf("0:04", "0:05", "0:06")));
}

} // namespace
} // namespace tarnel
