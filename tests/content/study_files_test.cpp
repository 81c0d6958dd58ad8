#include "content/flown_question.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

namespace tarnel {
namespace {

using enum StudyColumn;

StudyRecord numbersOf(StudyRecord record) {
    for (std::string& column : record.columns)
        if (column.find_first_not_of("0123456789.") != std::string::npos)
            column.clear();
    return record;
}

/// What the menu sets for an exercise, in the order of their types; what it leaves alone is empty.
struct Shipped {
    const char* stem; ///< of the sessions
    std::string_view left, right;
};

constexpr Shipped shipped[] = {{"hsi", "VOR", "HSI"},    {"stdvor", "", "VOR"},
                               {"hsihld", "RMI", "HSI"}, {"dghld", "", "DG"},
                               {"adfpos", "", "VOR"},    {"qdm", "", "RMI"},
                               {"qdr", "", "RMI"},       {"wind", "RMI", ""},
                               {"dmearc", "RMI", ""},    {"orientation", "VOR", "HSI"}};

TEST(StudyFiles, AskTheSameInBothLanguages) {
    for (int type = 1; type <= 10; ++type) {
        const auto german = writtenQuestions(studyLanguages()[0], type);
        const auto english = writtenQuestions(studyLanguages()[1], type);
        EXPECT_GE(german.size(), 10U) << type;
        ASSERT_EQ(german.size(), english.size()) << type;
        std::set<std::string> sessions;
        std::set<decltype(StudyRecord::columns)> asked;
        for (std::size_t i = 0; i < german.size(); ++i) {
            const std::string& session = german[i][sessionName];
            EXPECT_EQ(session, english[i][sessionName]);
            EXPECT_THAT(session, testing::StartsWith(shipped[type - 1].stem));
            EXPECT_EQ(numbersOf(german[i]), numbersOf(english[i])) << session;
            EXPECT_TRUE(sessions.insert(session).second) << session;
            StudyRecord question = german[i];
            question[sessionName].clear();
            EXPECT_TRUE(asked.insert(question.columns).second) << session;
        }
    }
}

TEST(StudyFiles, StandOnFlightsThatAreShortAndWhole) {
    for (int type = 1; type <= 10; ++type) {
        forEachQuestion(type, [type](const auto&, const auto&, const FlownQuestion& flown) {
            EXPECT_EQ(flown.boxes, 0U);
            EXPECT_EQ(flown.asked().sample, 1);
            EXPECT_GE(flown.rows.back().sample, 45);
            EXPECT_LE(flown.rows.back().sample, 181);
            EXPECT_EQ(flown.asked().turnRate, 0);
            // What the question asks must not be told beside it.
            for (const FlightEvent& event : flown.plan.events)
                EXPECT_FALSE(event.settings.comment && event.at < 10);
            const auto isSet = [](std::int16_t kind, std::string_view wanted) {
                return wanted.empty() || instrumentWord(kind) == wanted;
            };
            EXPECT_TRUE(isSet(flown.asked().inst2.type, shipped[type - 1].left));
            EXPECT_TRUE(isSet(flown.asked().inst3.type, shipped[type - 1].right));
        });
    }
}

} // namespace
} // namespace tarnel
