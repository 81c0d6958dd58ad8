#include "core/run_time_error.h"
#include "strings/string_table.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <string_view>

namespace tarnel {
namespace {

int errorNumberOf(const StringTable& table, int id) {
    try {
        (void)table.at(id);
    } catch (const RunTimeError& error) {
        EXPECT_NE(error.source().find(std::to_string(id)), std::string::npos);
        return error.number();
    }
    return 0;
}

TEST(StringTables, TellTheirLanguage) {
    EXPECT_TRUE(germanTable().isGerman());
    EXPECT_FALSE(englishTable().isGerman());
    EXPECT_EQ(englishTable()[Text::languageWord], "english");
}

TEST(StringTables, GiveTheSameBookPagesInBothLanguages) {
    for (int index = 0; index <= 64; ++index) {
        SCOPED_TRACE(index);
        const int page = germanTable().bookPage(index);
        EXPECT_EQ(std::to_string(page), germanTable().at(370 + index));
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

} // namespace
} // namespace tarnel
