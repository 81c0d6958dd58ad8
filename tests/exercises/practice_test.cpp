#include "exercise_fixture.h"
#include "exercises/mistake_round.h"
#include "exercises/question_key.h"
#include "exercises/text_hash.h"

#include <gmock/gmock.h>

#include <set>

namespace tarnel {
namespace {

using enum StudyColumn;
using testing::ElementsAre;

constexpr std::int64_t now = 20'000 * (MistakeRound::longAgo / 14);
constexpr std::int64_t edge = now - MistakeRound::longAgo;

/// The places that a round asks when `right(place, turn)` says how each went.
template <class Right>
std::vector<int> playedOut(MistakeRound round, Right right) {
    constexpr int enough = 40;
    std::vector<int> places;
    while (!round.over() && static_cast<int>(places.size()) < enough) {
        places.push_back(round.place());
        round.pass(right(round.place(), static_cast<int>(places.size())));
    }
    return places;
}

TEST(MistakeRounds, AskInTheOrderOfNeedAndLeaveOutWhatIsFresh) {
    const struct {
        const char* what;
        std::vector<QuestionStanding> standings;
        std::vector<int> order;
    } cases[] = {
        {"never asked: as the file has them", {}, {0, 1, 2, 3}},
        {"all fresh", {{5, now, true}, {6, now, true}, {7, edge, true}, {8, edge, true}}, {}},
        {"the day after two weeks, the older one first",
         {{5, edge - 1, true}, {6, edge, true}, {7, edge - 2, true}, {8, now, true}},
         {2, 0}},
        {"wrong before never asked before long ago",
         {{5, 1, true}, {7, now, false}, {8, edge, true}},
         {2, 1, 0}},
        {"of wrong ones the oldest, equal ones as in the file",
         {{8, now - 9, false}, {5, now, false}, {7, now - 9, false}, {6, now - 99, false}},
         {1, 2, 3, 0}},
        {"wrong in the future, by a clock that went wrong",
         {{5, now + 9, false}, {6, now + 9, true}, {7, now, false}, {8, now, true}},
         {2, 0}},
    };
    for (const auto& [what, standings, order] : cases) {
        const MistakeRound round({5, 6, 7, 8}, standings, now);
        EXPECT_EQ(round.count(), static_cast<int>(order.size())) << what;
        EXPECT_EQ(playedOut(round, [](int, int) { return true; }), order) << what;
    }
    EXPECT_TRUE(MistakeRound({}, {{5, 1, false}}, now).over());
    EXPECT_TRUE(MistakeRound().over());
}

TEST(MistakeRounds, BringWhatWentWrongBackAfterThreeOthersUntilItIsRight) {
    const auto wrongUntil = [](int place, int turn) {
        return [place, turn](int asked, int count) { return asked != place || count >= turn; };
    };
    EXPECT_THAT(playedOut(MistakeRound({0, 1, 2, 3, 4}), wrongUntil(0, 2)),
                ElementsAre(0, 1, 2, 3, 0, 4));
    EXPECT_THAT(playedOut(MistakeRound({0, 1, 2, 3, 4}), wrongUntil(3, 7)),
                ElementsAre(0, 1, 2, 3, 4, 3, 3));
    EXPECT_THAT(playedOut(MistakeRound({7}), wrongUntil(7, 4)), ElementsAre(7, 7, 7, 7));
    MistakeRound round({4, 9});
    round.pass(false);
    EXPECT_EQ(round.count(), 2);
    round.pass(true);
    EXPECT_EQ(round.count(), 1);
    EXPECT_EQ(round.place(), 4);
}

/// A question with a number of its own in every column.
StudyRecord full() {
    StudyRecord record;
    for (std::size_t i = 0; i < record.columns.size(); ++i)
        record.columns[i] = "word " + std::to_string(100 + i) + " word";
    record[sessionName] = "q1.ts";
    return record;
}

std::int64_t keyOf(const StudyRecord& record) {
    return questionKeys({record}).front();
}

TEST(QuestionKeys, HangOnEachNumberAndOnTheFlightButOnNoWord) {
    const std::int64_t key = keyOf(full());
    for (std::size_t i = 0; i < full().columns.size(); ++i) {
        const bool flight = i == static_cast<std::size_t>(sessionName);
        StudyRecord changed = full();
        changed.columns[i] = flight ? "e-q1.ts" : "Wörter " + std::to_string(100 + i) + " ß,";
        EXPECT_EQ(keyOf(changed), key) << i;
        changed.columns[i] = flight ? "Q1.ts" : "word 99 word";
        EXPECT_NE(keyOf(changed), key) << i;
        changed = full();
        std::swap(changed.columns[i], changed.columns[(i + 1) % changed.columns.size()]);
        EXPECT_NE(keyOf(changed), key) << "the place of a number counts, too: " << i;
    }
    const auto asked = [](const std::string& text) { return keyOf(recordOf({{qa, text}})); };
    EXPECT_EQ(asked("12,5 NM"), asked("12.5 Meilen"));
    EXPECT_NE(asked("12 5"), asked("125"));
    EXPECT_NE(asked("007"), asked("7"));
}

TEST(QuestionKeys, StayWhateverBecomesOfTheOtherQuestions) {
    StudyRecord other = full();
    other[ans1] = "7";
    StudyRecord third = full();
    third[sessionName] = "q2.ts";
    const std::vector<std::int64_t> keys = questionKeys({full(), other, full(), third});
    EXPECT_EQ(std::set<std::int64_t>(keys.begin(), keys.end()).size(), 4U);
    EXPECT_THAT(questionKeys({third, full(), full(), other}),
                ElementsAre(keys[3], keys[0], keys[2], keys[1]));
    EXPECT_THAT(questionKeys({full()}), ElementsAre(keys[0]));
    EXPECT_TRUE(questionKeys({}).empty());
}

/// Logs hold them for years.
TEST(QuestionKeys, AreTheSameInEveryBuild) {
    const std::string others(full().columns.size() - 2, '\n'); // besides the prompt and the flight
    EXPECT_EQ(keyOf(recordOf({{qa, "120 NDB MNW"}, {sessionName, "e-q.ts"}})),
              static_cast<std::int64_t>(textHash("q.ts\n120 " + others)));
    EXPECT_EQ(textHash(""), 0xcbf29ce484222325U);
    EXPECT_EQ(textHash("a"), 0xaf63dc4c8601ec8cU);
    EXPECT_EQ(textHash("foobar"), 0x85944171f73967e8U);
}

} // namespace
} // namespace tarnel
