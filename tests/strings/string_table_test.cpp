#include "core/run_time_error.h"
#include "strings/string_table.h"
#include "strings/tables.h"

#include <gtest/gtest.h>

#include <array>
#include <map>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tarnel {
namespace {

constexpr int firstId = 100;
constexpr int idCount = 900;
constexpr int firstPageId = static_cast<int>(Text::bookPageFirst);
constexpr int lastPageId = static_cast<int>(Text::bookPageLast);

/// Whether a name of `Text` has this value: the compiler writes a value without one as a cast.
template <Text value>
constexpr bool hasName() {
    return std::string_view(__PRETTY_FUNCTION__).find("(tarnel::Text)") == std::string_view::npos;
}

template <int... offsets>
constexpr std::array<bool, idCount> findNames(std::integer_sequence<int, offsets...>) {
    return {hasName<static_cast<Text>(firstId + offsets)>()...};
}

std::set<int> namedIds() {
    constexpr auto named = findNames(std::make_integer_sequence<int, idCount>());
    std::set<int> ids;
    for (int offset = 0; offset < idCount; ++offset)
        if (named[static_cast<std::size_t>(offset)])
            ids.insert(firstId + offset);
    for (int id = firstPageId; id <= lastPageId; ++id)
        ids.insert(id);
    return ids;
}

/// How often each of %1 to %9 stands in `text`.
std::map<char, int> placeholders(std::string_view text) {
    std::map<char, int> count;
    for (std::size_t at = 0; at + 1 < text.size(); ++at)
        if (text[at] == '%' && text[at + 1] >= '1' && text[at + 1] <= '9')
            ++count[text[at + 1]];
    return count;
}

/// A mark for each blank before and behind the text.
std::string blanksAtEnds(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    const std::size_t last = text.find_last_not_of(' ');
    return std::string(first, '<') + std::string(text.size() - 1 - last, '>');
}

int errorNumberOf(const StringTable& table, int id) {
    try {
        (void)table.at(id);
    } catch (const RunTimeError& error) {
        EXPECT_NE(error.source().find(std::to_string(id)), std::string::npos);
        return error.number();
    }
    return 0;
}

TEST(StringTables, HoldATextForEveryNameAndNoOther) {
    const std::set<int> named = namedIds();
    EXPECT_GT(named.size(), 500U);
    for (const StringTable* table : {&germanTable(), &englishTable()})
        EXPECT_EQ(std::set<int>(table->ids().begin(), table->ids().end()), named);
}

TEST(StringTables, AgreeInPlaceholdersAndBlanksAtTheEnds) {
    for (const int id : germanTable().ids()) {
        SCOPED_TRACE(id);
        const std::string_view ours = germanTable().at(id);
        const std::string_view theirs = englishTable().at(id);
        ASSERT_NE(ours.find_first_not_of(' '), std::string_view::npos);
        ASSERT_NE(theirs.find_first_not_of(' '), std::string_view::npos);
        EXPECT_EQ(placeholders(ours), placeholders(theirs));
        EXPECT_EQ(blanksAtEnds(ours), blanksAtEnds(theirs));
    }
}

TEST(StringTables, TellTheirLanguage) {
    EXPECT_TRUE(germanTable().isGerman());
    EXPECT_FALSE(englishTable().isGerman());
    EXPECT_EQ(englishTable()[Text::languageWord], "english");
}

TEST(StringTables, GiveTheSameBookPagesInBothLanguages) {
    for (int index = 0; index <= lastPageId - firstPageId; ++index) {
        SCOPED_TRACE(index);
        const int page = germanTable().bookPage(index);
        EXPECT_EQ(std::to_string(page), germanTable().at(firstPageId + index));
        EXPECT_EQ(englishTable().bookPage(index), page);
    }
    // The first and last of each group of the book's menu.
    const std::map<int, int> pages = {
        {0, 26},   {16, 200}, {17, 10},  {19, 21},  {20, 23},  {21, 27},  {22, 30},  {29, 77},
        {30, 85},  {34, 93},  {35, 96},  {38, 113}, {39, 120}, {41, 129}, {42, 133}, {48, 145},
        {49, 146}, {57, 163}, {58, 166}, {62, 179}, {63, 250}, {64, 251}};
    for (const auto& [index, page] : pages)
        EXPECT_EQ(germanTable().bookPage(index), page) << index;
    for (const int outside : {-1, 65, 80}) // 80 would be a caption behind the pages
        EXPECT_THROW((void)germanTable().bookPage(outside), RunTimeError) << outside;
}

TEST(StringTables, KeepTheGermanTextsToTheLetter) {
    const std::map<int, std::string_view> exact = {
        {106, "Sitzung laden"},
        {119, "Wenn dieses Feld markiert ist, können Sie die Instrumente wärend der Wiederholung "
              "nicht verstellen."},
        {122, "Stopt die Wiederholung"},
        {143, "Setzt die Karte in den Ausgangszustand zurrück"},
        {195, "POWER TIPS für HSI & STANDARD\u2013VOR"},
        {202, "POWER TIPS für Front Beam - Front Course"},
        {281, "Über \"Tarnel\" ..."},
        {312, "auswählen !"},
        {335, "Fly the current heading to the Station. Join the "},
        {452, "Zurrück>"},
        {463, "links klicken und nach oben oder unten ziehen: Freq = freq im DME, R1 = Receiver 1, "
              "R2= Receiver 2"},
    };
    for (const auto& [id, text] : exact)
        EXPECT_EQ(germanTable().at(id), text) << id;
    EXPECT_EQ(germanTable()[Text::adfPracticePrefix], "ADF Übung ");
    EXPECT_EQ(germanTable()[Text::aboveRequiredQdrOffer], ">  RQ QDR");
    EXPECT_EQ(germanTable()[Text::replayBufferAlmostFull], "Your replay buffer is allmost full !");
    EXPECT_EQ(germanTable()[Text::errorNumber], " ERROR # ");
}

TEST(StringTable, RefusesUnknownNumbers) {
    for (const int id : {-1, 0, 99, 123, 283, 369, 435, 9999}) // below, in the gaps and behind
        EXPECT_EQ(errorNumberOf(englishTable(), id), RunTimeError::subscriptOutOfRange) << id;
}

TEST(StringTable, TakesEntriesInAnyOrderButNoneTwice) {
    const StringEntry mixed[] = {{103, "c"}, {100, "german"}, {101, ""}};
    const StringTable table(mixed);
    EXPECT_EQ(table.ids(), (std::vector<int>{100, 101, 103}));
    EXPECT_EQ(table.at(101), "");
    EXPECT_EQ(errorNumberOf(table, 102), RunTimeError::subscriptOutOfRange);

    const StringEntry twice[] = {{100, "a"}, {100, "b"}};
    EXPECT_THROW(StringTable{twice}, std::invalid_argument);
    const StringEntry tooLow[] = {{99, "a"}};
    EXPECT_THROW(StringTable{tooLow}, std::invalid_argument);
}

} // namespace
} // namespace tarnel
