#include "core/aircraft.h"
#include "persistence/older_session_file.h"
#include "support/sample_chart.h"
#include "support/sample_session.h"

#include <gtest/gtest.h>

namespace tarnel {
namespace {

std::vector<std::string> olderLines(std::size_t samples) {
    std::vector<std::string> lines = {":c:Older", ":v1:,1", ":v2:,0", ":n1:,2",
                                      ":n2:,1",   ":lo:,0", ":mc:,3"};
    for (std::size_t i = 0; i < samples; ++i) {
        std::vector<std::string> sample = sampleLines();
        if (i > 0)
            sample[0] = sample[1] = "not looked at";
        lines.insert(lines.end(), sample.begin(), sample.end());
    }
    return lines;
}

SessionFile readLines(const std::vector<std::string>& lines) {
    return readOlderSession(joinLines(lines, lines.size()));
}

TEST(OlderSession, OnlyZeroAndOneTellWhetherAStationIsOn) {
    const SessionFile session = readLines(olderLines(0));
    EXPECT_EQ(session.problem, (FileProblem{8, FileField::latitude, true}));
    EXPECT_EQ(session.comments, std::vector<std::string>{"Older"});
    EXPECT_EQ(session.stations[0].stationOn, true);
    EXPECT_EQ(session.stations[1].stationOn, false);
    EXPECT_EQ(session.stations[2].stationOn, std::nullopt);
    EXPECT_EQ(session.stations[3].stationOn, true);
    EXPECT_EQ(session.stations[4].stationOn, false);
    EXPECT_FALSE(session.stations[0].state);
    EXPECT_EQ(session.mapCenterSelect, 3);
    auto lines = olderLines(0);
    lines[6] = ":mc:,1";
    EXPECT_FALSE(readLines(lines).mapCenterSelect);
}

/// Four ticks of the aircraft's own flight make a sample; a rhumb line is the same in one piece.
TEST(OlderSession, TheTrackIsFlownAsTheAircraftFlies) {
    const SessionFile session = readLines(olderLines(3));
    ASSERT_FALSE(session.problem);
    ASSERT_EQ(session.samples.size(), 3U);
    EXPECT_EQ(session.samples[0].traceLat, 48.25);
    EXPECT_EQ(session.samples[0].traceLon, 11.5);
    Aircraft aircraft;
    aircraft.placeAt(GeoPosition{48.25, 11.5});
    aircraft.trueHeading = 271.125;
    aircraft.tasUsed = 120;
    for (std::size_t i = 1; i < 3; ++i) {
        for (int tick = 0; tick < 4; ++tick)
            aircraft.fly(Wind{250, 15});
        const Sample& sample = session.samples[i];
        EXPECT_NEAR(sample.traceLat, aircraft.aircraftLat - 0.0007 * static_cast<double>(i), 1e-9);
        EXPECT_NEAR(sample.traceLon, aircraft.aircraftLon, 1e-6);
        EXPECT_EQ(sample.traceHeading, 271.125);
        EXPECT_EQ(sample.traceHDGbug, 19);
    }
    const SessionFile again = readSession(writeSession(session, 13));
    EXPECT_FALSE(again.problem);
    EXPECT_EQ(again.samples[2].traceLat, session.samples[2].traceLat);
    EXPECT_EQ(again.samples[2].traceLon, session.samples[2].traceLon);
}

TEST(OlderSession, StopsAtTheLineThatIsWrong) {
    const auto complete = olderLines(2);
    for (std::size_t kept = 1; kept < complete.size(); ++kept) {
        const SessionFile session = readOlderSession(joinLines(complete, kept));
        ASSERT_EQ(session.problem.has_value(), kept != 48) << kept;
        EXPECT_EQ(session.samples.size(), kept < 48 ? 0U : 1U) << kept;
    }
    const std::tuple<std::size_t, const char*, FileProblem> cases[] = {
        {2, "***********", {2, FileField::stationState, false}},
        {7, ":mc:,99999", {7, FileField::mapCentre, false}},
        {8, "91", {8, FileField::latitude, false}},
        {51, "north", {51, FileField::degrees, false}},
        {54, "1e9", {54, FileField::airspeed, false}},
    };
    for (const auto& [line, text, problem] : cases) {
        auto lines = complete;
        lines[line - 1] = text;
        EXPECT_EQ(readLines(lines).problem, problem) << line;
    }
}

TEST(OlderSession, ATrackOverThePoleEndsBeforeIt) {
    auto lines = olderLines(2000);
    lines[7] = "88.9";
    for (std::size_t i = 7; i < lines.size(); i += 41) {
        lines[i + 2] = "0";
        lines[i + 5] = "1000";
    }
    const SessionFile session = readLines(lines);
    ASSERT_TRUE(session.problem);
    EXPECT_EQ(session.problem->expected, FileField::latitude);
    EXPECT_FALSE(session.samples.empty());
}

} // namespace
} // namespace tarnel
