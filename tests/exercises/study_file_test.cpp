#include "exercises/study_file.h"
#include "support/told.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <string>

namespace tarnel {
namespace {

using enum StudyColumn;

std::string lines(std::initializer_list<std::string> texts, const std::string& end = "\r\n") {
    std::string bytes;
    for (const std::string& text : texts)
        bytes += text + end;
    return bytes;
}

const std::string hsiRecord =
    lines({":qa:,radial", ":qb:,bearing", ":qc:,needle", ":a1:,090", ":a2:,270",
           ":a3:,+Nach links+Nach rechts+", ":s:,hsi 1.ts", ""});

TEST(StudyFile, TakesTaggedPromptsInAnyOrderAndTheRestByPlace) {
    const StudyFile file = readStudyFile(lines({":qc:,third", ":qa:,old", ":qa:,first", "12345090",
                                                ":qa:,270", "tag, ", "tag.x.ts", "separator"}),
                                         1);
    ASSERT_EQ(file.records.size(), 1U);
    const StudyRecord& record = file.records.front();
    EXPECT_EQ(told(record[qa], record[qb], record[qc], record[ans1]), "first  third 090");
    EXPECT_EQ(record[ans2], "270") << "behind the first answer a prompt's tag means nothing";
    EXPECT_EQ(record[ans3], "");
    EXPECT_EQ(record[sessionName], "x.ts");
    EXPECT_EQ(file.end, StudyEnd::complete);
}

// Each line is a letter of its own behind a tag as long as the reader drops.
TEST(StudyFile, HasALayoutForEachExercise) {
    const struct {
        std::vector<int> types;
        std::string tags;    ///< how long they are, line by line
        std::string columns; ///< which line each column holds
    } layouts[] = {{{1, 10}, "5554", "------------ABC----D"},
                   {{2, 3, 4, 9}, "55554", "--A---------BCD----E"},
                   {{5}, "666666666666555554", "ABCDEFGHIJKLMNOPQ--R"},
                   {{6, 7}, "555555554", "A-----------EFGHBCDI"},
                   {{8}, "555555555554", "ABJK--------HGCDEFIL"}};
    for (const auto& [types, tags, columns] : layouts) {
        std::string bytes;
        for (std::size_t line = 0; line < tags.size(); ++line)
            bytes += std::string(tags[line] - std::size_t{'0'}, 't') + char('A' + line) + "\n";
        for (const int type : types) {
            const StudyFile file = readStudyFile(bytes + "separator", type);
            ASSERT_EQ(file.records.size(), 1U) << type;
            std::string found;
            for (const std::string& column : file.records.front().columns)
                found += column.empty() ? "-" : column;
            EXPECT_EQ(found, columns) << type;
        }
    }
    for (const int type : {-1, 0, 11})
        EXPECT_TRUE(readStudyFile(hsiRecord, type).records.empty());
}

TEST(StudyFile, KeepsWhatWasCompleteBeforeTheTextEnds) {
    std::string bytes = hsiRecord + hsiRecord;
    bytes.resize(bytes.size() - 2); // the separator of the second record
    const StudyFile file = readStudyFile(bytes, 1);
    EXPECT_EQ(file.records.size(), 1U);
    EXPECT_EQ(file.end, StudyEnd::insideRecord);
    EXPECT_EQ(file.record, 2);
    EXPECT_EQ(file.line, 15);

    const StudyFile lastLineOpen = readStudyFile(bytes + "end", 1);
    EXPECT_EQ(lastLineOpen.records.size(), 2U);
    EXPECT_EQ(lastLineOpen.end, StudyEnd::complete);

    const StudyFile trailingBlanks = readStudyFile(hsiRecord + "\r\n \r\n\r\n", 1);
    EXPECT_EQ(trailingBlanks.records.size(), 1U);
    EXPECT_EQ(trailingBlanks.end, StudyEnd::complete);
    EXPECT_EQ(readStudyFile("", 1).end, StudyEnd::complete);
}

TEST(StudyFile, ALineTooFewShiftsARecordAndTheNextPromptsBringItBack) {
    const std::string withoutThirdAnswer =
        lines({":qa:,radial", ":a1:,090", ":a2:,270", ":s:,gap.ts", ""});
    const StudyFile file = readStudyFile(hsiRecord + withoutThirdAnswer + hsiRecord + hsiRecord, 1);
    ASSERT_EQ(file.records.size(), 4U);
    EXPECT_EQ(file.records[1][ans3], "ap.ts");
    EXPECT_EQ(file.records[1][sessionName], "");
    EXPECT_EQ(file.records[2][qa], "") << "it stood where the separator was expected";
    EXPECT_EQ(file.records[2][ans1], "090");
    EXPECT_EQ(file.records[3], file.records[0]);

    // A blank line between records opens one, and no tag brings a record of fixed lines back.
    StudyRecord wind;
    wind[qa] = "270";
    const std::string written = writeStudyRecord(wind, 8);
    const StudyFile shifted = readStudyFile(written + "\r\n" + written, 8);
    ASSERT_EQ(shifted.records.size(), 2U);
    EXPECT_EQ(shifted.records[1][qb], "270");
}

TEST(StudyFile, HoldsRecordsUpToIndex300) {
    std::string bytes;
    for (int i = 0; i < maxStudyRecords; ++i)
        bytes += hsiRecord;
    EXPECT_EQ(readStudyFile(bytes, 1).end, StudyEnd::complete);
    const StudyFile file = readStudyFile(bytes + hsiRecord, 1);
    EXPECT_EQ(file.records.size(), 301U);
    EXPECT_EQ(file.end, StudyEnd::tooManyRecords);
    EXPECT_EQ(file.record, 302);
    EXPECT_EQ(file.line, 301 * 8);
}

TEST(StudyFile, ReadsEitherEncodingAndEitherLineEnd) {
    const auto trend = [](const std::string& bytes) {
        const StudyFile file = readStudyFile(bytes, 1);
        return file.records.empty() ? "" : file.records.front()[ans1];
    };
    const auto record = [](const std::string& answer, const std::string& end) {
        return lines({":a1:," + answer, ":a2:,", ":a3:,", ":s:,x", ""}, end);
    };
    EXPECT_EQ(told(trend(record("größer", "\r\n")), trend(record("größer", "\n")),
                   trend("\xEF\xBB\xBF" + record("größer", "\n"))),
              "größer größer größer");
    EXPECT_EQ(trend(record("gr\xF6\xDF"
                           "er \x80\x81",
                           "\r\n")),
              "größer €\xC2\x81");
    // A tag is counted in characters.
    const StudyFile file = readStudyFile(lines({"ÄÖÜ:,5", "", "", "", ""}, "\n"), 1);
    ASSERT_EQ(file.records.size(), 1U);
    EXPECT_EQ(file.records.front()[ans1], "5");
}

/// A text as a course could hold it; a record's texts have no line breaks.
rc::Gen<std::string> studyTexts() {
    return rc::gen::map(
        rc::gen::container<std::vector<std::string>>(rc::gen::elementOf(std::vector<std::string>{
            "a", "0", "9", " ", ":", ",", "+", ":qa:,", "ß", "°", "€", "\xF0\x9F\x9B\xA9"})),
        [](const std::vector<std::string>& pieces) {
            std::string text;
            for (const std::string& piece : pieces)
                text += piece;
            return text;
        });
}

RC_GTEST_PROP(StudyFile, ReadsWhatItWrites, ()) {
    const int type = *rc::gen::inRange(1, 11);
    StudyRecord record;
    for (std::string& column : record.columns)
        column = *studyTexts();
    const std::string written = writeStudyRecord(record, type);
    const StudyFile file = readStudyFile(written + written, type);
    RC_ASSERT(file.end == StudyEnd::complete);
    RC_ASSERT(file.records.size() == 2U);
    RC_ASSERT(file.records[0] == file.records[1]);
    RC_ASSERT(writeStudyRecord(file.records[0], type) == written);
    RC_ASSERT(file.records[0][ans1] == record[ans1]);
    RC_ASSERT(file.records[0][sessionName] == record[sessionName]);
}

TEST(StudyFile, WritesALineBreakAsABlank) {
    StudyRecord broken;
    broken[ans1] = "one\r\ntwo";
    EXPECT_EQ(readStudyFile(writeStudyRecord(broken, 1), 1).records.front()[ans1], "one  two");
}

} // namespace
} // namespace tarnel
