#include "content/flown_question.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

namespace tarnel {
namespace {

bool isNumber(const std::string& text) {
    return text.find_first_not_of("0123456789.") == std::string::npos;
}

StudyColumns numbersOf(const WrittenQuestion& record) {
    StudyColumns numbers = record.columns;
    std::erase_if(numbers, [](const auto& column) { return !isNumber(column.second); });
    return numbers;
}

TEST(StudyFiles, AskTheSameInBothLanguages) {
    for (const StudyLayout& layout : studyLayouts()) {
        SCOPED_TRACE(layout.file);
        const auto german = readStudyFile(studyLanguages()[0], layout);
        const auto english = readStudyFile(studyLanguages()[1], layout);
        EXPECT_GE(german.size(), 10U);
        ASSERT_EQ(german.size(), english.size());
        std::set<std::string> sessions;
        std::set<StudyColumns> asked;
        for (std::size_t i = 0; i < german.size(); ++i) {
            EXPECT_EQ(german[i].session, english[i].session);
            EXPECT_THAT(german[i].session, testing::StartsWith(layout.stem));
            EXPECT_EQ(numbersOf(german[i]), numbersOf(english[i])) << german[i].session;
            EXPECT_TRUE(sessions.insert(german[i].session).second) << german[i].session;
            EXPECT_TRUE(asked.insert(german[i].columns).second) << german[i].session;
        }
    }
}

/// The pair of instruments that the menu sets for an exercise; what it leaves alone is empty.
struct Instruments {
    std::string_view left;
    std::string_view right;
};

const std::map<std::string, Instruments> instrumentsOf = {
    {"hsi", {"VOR", "HSI"}},    {"stdvor", {"", "VOR"}},
    {"hsihld", {"RMI", "HSI"}}, {"dghld", {"", "DG"}},
    {"adfpos", {"", "VOR"}},    {"qdm", {"", "RMI"}},
    {"qdr", {"", "RMI"}},       {"wind", {"RMI", ""}},
    {"dmearc", {"RMI", ""}},    {"orientation", {"VOR", "HSI"}},
};

TEST(StudyFiles, StandOnFlightsThatAreShortAndWhole) {
    for (const auto& [stem, instruments] : instrumentsOf) {
        forEachQuestion(stem, [&](const auto&, const WrittenQuestion&, const FlownQuestion& flown) {
            EXPECT_EQ(flown.boxes, 0U);
            EXPECT_EQ(flown.asked().sample, 1);
            EXPECT_GE(flown.rows.back().sample, 45);
            EXPECT_LE(flown.rows.back().sample, 181);
            EXPECT_EQ(flown.asked().turnRate, 0);
            // What the question asks must not be told beside it.
            for (const FlightEvent& event : flown.plan.events)
                EXPECT_FALSE(event.settings.comment && event.at < 10);
            const auto isSet = [](std::int16_t type, std::string_view wanted) {
                return wanted.empty() || instrumentWord(type) == wanted;
            };
            EXPECT_TRUE(isSet(flown.asked().inst2.type, instruments.left));
            EXPECT_TRUE(isSet(flown.asked().inst3.type, instruments.right));
        });
    }
}

} // namespace
} // namespace tarnel
