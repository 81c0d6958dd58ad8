#include "content/flown_question.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <set>

namespace tarnel {
namespace {

using enum StudyColumn;

using testing::HasSubstr;

constexpr double degree = 3.14159265358979323846 / 180;
constexpr std::size_t ticksPerSecond = 3;

struct Entry {
    std::string name;
    double heading = 0; ///< the first one behind the station
    std::string side;   ///< of the turn to it
};

/// The entry by the three sectors around the station, drawn for right turns and mirrored for left
/// ones: 70 degrees on the one side, 110 on the other, and the rest. Near a border it has no name.
Entry entryOf(double heading, double inbound, bool rightTurns) {
    const double hand = rightTurns ? 1 : -1;
    const double angle = circle(hand * (heading - inbound));
    for (const double border : {110, 180, 290}) {
        if (std::abs(angle - border) < 5)
            return {};
    }
    const double outbound = circle(inbound + 180);
    const std::string holdingSide = rightTurns ? "right" : "left";
    const std::string otherSide = rightTurns ? "left" : "right";
    if (angle < 110 || angle > 290)
        return {"direct", outbound, holdingSide};
    if (angle > 180)
        return {"parallel", outbound, otherSide};
    // The quiz compares plain numbers, so the short way must be the one that they tell.
    const double offset = circle(inbound + hand * 150);
    return {"offset", offset, heading == offset ? "maintain" : heading > offset ? "left" : "right"};
}

/// The entry of the holding that a question asks for, flown as it should be.
Entry expectHolding(const StudyRecord& record, const FlownQuestion& flown, Slot station) {
    const double heading = std::stod(record[ans1]);
    const double inbound = std::stod(record[ans2]);
    expectDirection(record[ans1], flown.asked().heading);
    expectDirection(record[ans1], radialAt(flown.asked(), station) + 180);
    EXPECT_LT(heading, 360);
    EXPECT_THAT(record[qc], HasSubstr(flown.identifier(station)));
    const Entry entry = entryOf(heading, inbound, record[ans3] == "Standard");
    EXPECT_FALSE(entry.name.empty());
    FirstTurn turn = flown.firstTurn();
    if (entry.side == "maintain") {
        EXPECT_GT(turn.tick, 90 * ticksPerSecond); // the station and most of a minute behind it
    } else {
        EXPECT_EQ(turn.side, entry.side);
        EXPECT_NEAR(turnBetween(turn.heading, entry.heading), 0, 1);
        // The station was ahead a moment before, and is behind now.
        const auto ahead = [&](std::size_t tick) {
            return std::cos((radialAt(flown.rows[tick], station) - heading) * degree);
        };
        EXPECT_LT(ahead(turn.tick - 4 * ticksPerSecond), -0.9);
        EXPECT_GT(ahead(turn.tick), 0.7);
    }
    EXPECT_THAT(flown.plan.events.front().settings.comment.value_or(""),
                testing::StartsWith(entry.name));
    // In the end the station is ahead again, about on the inbound course.
    const FlightRow& end = flown.rows.back();
    EXPECT_LT(std::abs(turnBetween(end.heading, radialAt(end, station) + 180)), 10);
    EXPECT_LT(std::abs(turnBetween(end.heading, inbound)), 60);
    return entry;
}

TEST(HoldingQuestions, AreEnteredAsTheirAnswersSay) {
    for (const bool gyro : {false, true}) {
        std::set<std::string> entries;
        forEachQuestion(
            gyro ? 4 : 3, [&](const auto&, const StudyRecord& record, const FlownQuestion& flown) {
                const Slot station = gyro ? flown.adfStation() : flown.navStation();
                entries.insert(expectHolding(record, flown, station).name + record[ans3]);
            });
        EXPECT_EQ(entries.size(), 6U) << "three entries, to the right and to the left";
    }
}

/// How the angle between the actual and the required bearing develops on the present heading.
std::string angleTrend(const StudyLanguage& language, double first, double later) {
    constexpr double steady = 0.3;
    constexpr double seen = 1.5;
    EXPECT_TRUE(std::abs(later - first) < steady || std::abs(later - first) > seen);
    return std::abs(later - first) < steady ? language.stays
           : later > first                  ? language.grows
                                            : language.shrinks;
}

void expectIntercept(const StudyLanguage& language, const StudyRecord& record,
                     const FlownQuestion& flown, bool inbound) {
    const bool beacon = record[qa].find("NDB") != std::string::npos;
    const Slot station = beacon ? flown.adfStation() : flown.navStation();
    const auto bearing = [&](const FlightRow& row) {
        return circle(radialAt(row, station) + (inbound ? 180 : 0));
    };
    const double required = std::stod(record[qa]);
    const double actual = std::stod(record[ans1]);
    EXPECT_THAT(record[qa], HasSubstr(flown.identifier(station)));
    expectDirection(record[ans1], bearing(flown.asked()));

    const FirstTurn turn = flown.firstTurn();
    const bool turnsAtOnce = turn.tick < 30 * ticksPerSecond;
    EXPECT_EQ(record[ans3], turnsAtOnce ? turn.side : "maintain");
    const double heading = turnsAtOnce ? turn.heading : flown.asked().heading;
    expectDirection(record[ans6], heading);
    const auto angle = [&](const FlightRow& row) {
        return std::abs(turnBetween(bearing(row), required));
    };
    const std::size_t held = turnsAtOnce ? turn.tick : 16 * ticksPerSecond;
    EXPECT_EQ(record[ans2], angleTrend(language, angle(flown.asked()), angle(flown.rows[held])));

    if (required == actual) {
        EXPECT_FALSE(inbound); // there is no button for it
        EXPECT_EQ(record[ans4], "maintain");
        EXPECT_NEAR(heading, actual, 1);
    } else {
        // "Above" and "below" must be meant without passing north.
        const double limit = inbound ? actual : required;
        EXPECT_LT(std::abs(heading - limit), 180);
        EXPECT_EQ(record[ans4], heading > limit ? language.grows : language.shrinks);
    }
    EXPECT_NEAR(turnBetween(bearing(flown.rows.back()), required), 0, 1);
    EXPECT_NEAR(turnBetween(flown.rows.back().heading, required), 0, 1);
}

TEST(InterceptQuestions, AreFlownOntoTheRequiredBearing) {
    for (const bool inbound : {true, false}) {
        forEachQuestion(
            inbound ? 6 : 7,
            [&](const StudyLanguage& language, const StudyRecord& record,
                const FlownQuestion& flown) { expectIntercept(language, record, flown, inbound); });
    }
}

/// The number behind the last `word` of a text.
double numberBehind(const std::string& text, const std::string& word) {
    const auto place = text.rfind(word);
    EXPECT_NE(place, std::string::npos) << word << " in " << text;
    return place == std::string::npos ? 0 : std::stod(text.substr(place + word.size()));
}

/// The first tick of the last turn but what follows it.
std::size_t lastTurn(const FlownQuestion& flown) {
    std::size_t tick = flown.rows.size() - 1;
    while (flown.rows[tick].turnRate == 0)
        --tick;
    while (flown.rows[tick].turnRate != 0)
        --tick;
    return tick;
}

void expectArcKept(const StudyRecord& record, const FlownQuestion& flown, std::size_t from,
                   std::size_t until) {
    const Slot station = flown.navStation();
    const double distance = numberBehind(record[qc], "ARC ");
    for (std::size_t tick = from; tick <= until; ++tick) {
        const FlightRow& row = flown.rows[tick];
        EXPECT_NEAR((station == Slot::vor1 ? row.vor1 : row.vor2).dme, distance, 0.7) << tick;
    }
    const double around =
        turnBetween(radialAt(flown.rows[from], station), radialAt(flown.rows[until], station));
    EXPECT_GT(std::abs(around), 12);
    const bool against = record[qc].find("gegen") != std::string::npos ||
                         record[qc].find("counter") != std::string::npos;
    EXPECT_EQ(against, around < 0);
}

TEST(ArcQuestions, AreJoinedKeptAndLeft) {
    forEachQuestion(9, [](const auto&, const StudyRecord& record, const FlownQuestion& flown) {
        const Slot station = flown.navStation();
        const double final = numberBehind(record[qc], "inal ");
        EXPECT_THAT(record[qc], HasSubstr(flown.identifier(station)));
        EXPECT_EQ(flown.plan.start.dme, flown.plan.start.nav1);
        EXPECT_EQ(flown.plan.start.obs3, final);

        const bool joined = record[ans1] == "maintain"; // already on the arc
        const FirstTurn turn = flown.firstTurn();
        if (!joined) {
            EXPECT_EQ(record[ans1], turn.side);
        }
        expectDirection(record[ans2], joined ? flown.asked().heading : turn.heading);
        std::size_t level = joined ? FlownQuestion::firstSampleTick : turn.tick;
        while (flown.rows[level].turnRate != 0)
            ++level;
        const std::size_t lead = lastTurn(flown);
        expectArcKept(record, flown, level, lead);

        expectDirection(record[ans3], radialAt(flown.rows[lead], station));
        const double ahead = std::abs(turnBetween(std::stod(record[ans3]), final + 180));
        EXPECT_GE(ahead, 4);
        EXPECT_LE(ahead, 12);
        EXPECT_NEAR(turnBetween(flown.rows.back().heading, final), 0, 1);
        EXPECT_NEAR(turnBetween(radialAt(flown.rows.back(), station) + 180, final), 0, 2);
    });
}

} // namespace
} // namespace tarnel
