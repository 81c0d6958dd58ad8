#include "shell/answers_csv.h"
#include "shell/memory_log.h"
#include "shell/progress.h"
#include "support/noted_world.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cstdlib>

namespace tarnel {
namespace {

using enum ExerciseType;
using testing::ElementsAre;

AnsweredRow row(ExerciseType exercise, Text spot, bool right, const std::string& course = {}) {
    AnsweredRow answered;
    answered.exercise = exercise;
    answered.spot = spot;
    answered.right = right;
    answered.courseKey = course;
    return answered;
}

/// Adds an answer for each letter: "+" right, "-" wrong.
void answer(TrainingLog& log, const std::string& went, ExerciseType exercise, Text spot,
            const std::string& course = {}) {
    for (const char each : went)
        log.add(row(exercise, spot, each == '+', course));
}

constexpr std::int64_t bounds[] = {-20, -10, 0, 10};

TEST(ProgressCounts, HaveAMiddleTimeAndARoundedShare) {
    const struct {
        std::vector<std::int64_t> times;
        std::int64_t middle;
    } medians[] = {{{}, 0},        {{5}, 5},          {{9, 1}, 5},
                   {{9, 1, 2}, 2}, {{4, 1, 3, 2}, 2}, {{7, 7, 1, 900'000, 1, 8}, 7}};
    for (const auto& [times, middle] : medians) {
        MemoryLog log;
        for (const std::int64_t took : times) {
            AnsweredRow answered = row(qdm, Text::spotQdmTurn, true);
            answered.milliseconds = took;
            log.add(answered);
            answered.when = -1; // what another span takes does not move it
            answered.milliseconds = 1'000'000;
            log.add(answered);
        }
        const Progress progress = progressOf(log, {}, bounds);
        EXPECT_EQ(progress.all.now().milliseconds, middle);
        EXPECT_EQ(progress.all.now().asked, static_cast<int>(times.size()));
    }
    const struct {
        int right;
        int asked;
        std::optional<int> percent;
    } shares[] = {{0, 0, {}}, {0, 7, 0},  {7, 7, 100},     {1, 3, 33},
                  {2, 3, 67}, {1, 8, 13}, {199, 200, 100}, {1, 201, 0}};
    for (const auto& [right, asked, percent] : shares)
        EXPECT_EQ((Tally{.asked = asked, .right = right}.percent()), percent) << asked;
}

TEST(ProgressCounts, KeepCoursesOfOnesOwnApart) {
    MemoryLog log;
    answer(log, "++-", qdm, Text::spotQdmTurn);
    answer(log, "----", qdm, Text::spotQdmTurn, "own/");
    answer(log, "+", wind, Text::spotCrosswind, "own/");
    answer(log, "---", static_cast<ExerciseType>(42), Text::spotQdm); // of a newer program
    const auto counted = [&](std::optional<int> course) {
        const Progress progress = progressOf(log, course, bounds);
        int sum = 0;
        for (const ExerciseProgress& each : progress.exercises)
            sum += each.now().asked;
        EXPECT_EQ(sum, progress.answers);
        EXPECT_EQ(progress.exercises.size(), exerciseCatalogue().size());
        std::string spots;
        for (const SpotProgress& spot : progress.spots)
            spots += " " + std::to_string(spot.right) + "/" + std::to_string(spot.asked) + " " +
                     spot.courseKey;
        return std::to_string(progress.all.now().right) + "/" + std::to_string(sum) + spots;
    };
    ASSERT_EQ(log.courses().size(), 2U);
    EXPECT_EQ(counted({}), "3/8 2/7 own/");
    EXPECT_EQ(counted(log.courses()[0].number), "2/3 2/3 ");
    EXPECT_EQ(counted(log.courses()[1].number), "1/5 0/4 own/");
    EXPECT_EQ(counted(77), "0/0");
}

TEST(WeakSpots, AreThoseOfTheLastTwelveAnswersWithAtLeastThree) {
    const struct {
        const char* went;
        std::string told;
    } cases[] = {
        {"--", ""},
        {"---", "0/3"},
        {"+++", ""},
        {"++-", "2/3"},
        {"-++++++++++++", ""}, // the wrong one is the thirteenth
        {"--++++++++++", "10/12"},
        {"------------++++++++++++-", "11/12"},
    };
    for (const auto& [went, told] : cases) {
        MemoryLog log;
        answer(log, went, qdm, Text::spotQdmTurn);
        std::string found;
        for (const SpotProgress& spot : progressOf(log, {}, bounds).spots)
            found += std::to_string(spot.right) + "/" + std::to_string(spot.asked);
        EXPECT_EQ(found, told) << went;
    }
}

TEST(WeakSpots, StandTheWeakestFirstAndNameWhereToTrain) {
    MemoryLog log;
    answer(log, "+-+-", qdr, Text::spotQdrTurn);
    answer(log, "+-+-", qdm, Text::spotQdmTurn); // ties: by the texts' order
    answer(log, "+-+-+-", wind, Text::spotCrosswind);
    answer(log, "--+", dmeArc, Text::spotLeadRadial);
    answer(log, "-++", hsiHolding, Text::spotOutbound);
    answer(log, "--+", dgHolding, Text::spotOutbound, "own/");
    answer(log, "+++", wind, Text::spotOutbound);
    std::vector<Text> order;
    const std::vector<SpotProgress> spots = progressOf(log, {}, bounds).spots;
    for (const SpotProgress& spot : spots)
        order.push_back(spot.spot);
    EXPECT_THAT(order,
                ElementsAre(Text::spotLeadRadial, Text::spotCrosswind,
                            std::min(Text::spotQdmTurn, Text::spotQdrTurn),
                            std::max(Text::spotQdmTurn, Text::spotQdrTurn), Text::spotOutbound));
    EXPECT_THAT(spots.back().exercises, ElementsAre(dgHolding, hsiHolding, wind));
    EXPECT_EQ(spots.back().courseKey, "own/");
    EXPECT_EQ(spots.front().courseKey, "");
}

/// A world whose clock tells what it was asked for.
struct ClockWorld : NotedWorld {
    bool hasClock = true;
    std::string localTime(std::int64_t time, const std::string& format) override {
        return hasClock ? std::to_string(time) + " " + format : "";
    }
};

TEST(AnswersCsv, QuotesWhatItMustAndKeepsEachColumnInItsPlace) {
    const std::pair<std::string, std::string> values[] = {
        {"", ""},
        {"Übung 090° <ß>; 'x'", "Übung 090° <ß>; 'x'"},
        {"a,b", "\"a,b\""},
        {"say \"x\"", "\"say \"\"x\"\"\""},
        {"\"", "\"\"\"\""},
        {"two\nlines", "\"two\nlines\""},
        {"two\r\nlines", "\"two\r\nlines\""},
        {" blank ", " blank "},
    };
    for (const auto& [value, told] : values) {
        MemoryLog log;
        AnsweredRow answered = row(qdm, Text::spotQdmTurn, false);
        answered.when = 86'400'999;
        answered.question = -7;
        answered.row = 2;
        answered.milliseconds = 12'999;
        answered.courseName = answered.given = answered.answer = value;
        log.add(answered);
        answered.right = true;
        answered.exercise = static_cast<ExerciseType>(42); // of a newer program
        log.add(answered);
        ClockWorld world;
        const std::string timed = told + "," + "QDM Exercises,-7/3,QDM: the first turn," + told +
                                  "," + told + ",0,12\r\n" + "86400 yyyy-MM-dd HH:mm," + told +
                                  ",,-7/3,QDM: the first turn," + told + "," + told + ",1,12\r\n";
        const std::string table = answersCsv(log, englishTable(), world);
        const std::string lines = table.substr(table.find("\r\n") + 2);
        EXPECT_EQ(lines, "86400 yyyy-MM-dd HH:mm," + timed);
        world.hasClock = false;
        const std::string timeless = answersCsv(log, englishTable(), world);
        EXPECT_EQ(timeless.find("\r\n," + told + ",QDM Ex"), timeless.find("\r\n")) << told;
    }
    MemoryLog empty;
    ClockWorld world;
    for (const StringTable* texts : {&englishTable(), &germanTable()}) {
        const std::string heading = answersCsv(empty, *texts, world);
        EXPECT_EQ(std::count(heading.begin(), heading.end(), ','), 8);
        EXPECT_EQ(heading.find("\r\n"), heading.size() - 2);
    }
}

TEST(FlightLimits, LetTheOldestGoButNeverTheNewestNorAPinnedOne) {
    const struct {
        std::vector<std::int64_t> sizes; ///< the newest first, those of pinned ones negative
        FlightLimits limits;
        std::vector<std::int64_t> gone; ///< places from 1
    } cases[] = {{{}, {1, 1}, {}},
                 {{5}, {1, 1}, {}},
                 {{5, 5, 5}, {3, 15}, {}},
                 {{5, 5, 5}, {2, 15}, {3}},
                 {{5, 5, 5}, {3, 14}, {3}},
                 {{1, 9, 1}, {9, 8}, {2, 3}}, // the oldest go, not only the large one
                 {{5, -9, 5, -9, 5}, {2, 10}, {5}},
                 {{-9, -9}, {1, 1}, {}},
                 {{-9, 5, 5}, {1, 100}, {3}},
                 {{1, 2'000'000'000, 2'000'000'000}, {9, 3'000'000'000}, {3}}};
    for (const auto& [sizes, limits, gone] : cases) {
        std::vector<LoggedFlight> flights;
        for (const std::int64_t size : sizes) {
            LoggedFlight& flight = flights.emplace_back();
            flight.id = static_cast<std::int64_t>(flights.size());
            flight.bytes = std::abs(size);
            flight.pinned = size < 0;
        }
        EXPECT_EQ(flightsToLetGo(flights, limits), gone) << testing::PrintToString(sizes);
    }
}

} // namespace
} // namespace tarnel
