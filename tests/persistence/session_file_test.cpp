#include "persistence/session_file.h"
#include "support/enciphered.h"
#include "support/sample_chart.h"
#include "support/sample_session.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <bit>
#include <cmath>
#include <limits>

namespace tarnel {
namespace {

const std::string stars(54, '*');
constexpr std::size_t headSize = 19;
constexpr std::size_t sampleSize = 41;

std::string encipheredFile(const std::string& body, const std::string& end = "\r\n") {
    return stars + end + "***** !DO NOT EDIT! *** Tarnel.ts file            ****" + end + stars +
           end + "7" + end + encipheredWithKey7(body);
}

std::string sessionText(std::size_t samples, const std::string& end = "\r\n") {
    const auto lines = sessionLines(samples);
    return joinLines(lines, lines.size(), end);
}

/// A session of one sample with line `number` (from 1) replaced.
std::string sessionWith(std::size_t number, const std::string& line) {
    auto lines = sessionLines(1);
    lines[number - 1] = line;
    return joinLines(lines, lines.size());
}

/// All fields, bit for bit, as a plain file writes them.
std::string bitsOf(const Sample& sample) {
    SessionFile session;
    session.samples = {sample};
    return writeSession(session, {});
}

void expectSampleSession(const SessionFile& session, std::size_t samples) {
    EXPECT_FALSE(session.problem);
    EXPECT_EQ(session.comments, (std::vector<std::string>{"Intercept, then \"turn\"", "---"}));
    EXPECT_EQ(session.stations[0].identifier, "ALB");
    EXPECT_EQ(session.stations[1].labelOffsetX, 200);
    EXPECT_EQ(session.stations[4].frequency, "108.70");
    EXPECT_EQ(session.stations[1].state, (StationState{false, true, false}));
    EXPECT_EQ(session.mapCenterSelect, 2);
    EXPECT_EQ(session.mapScaleTwips, 250);
    ASSERT_EQ(session.samples.size(), samples);
    for (const Sample& sample : session.samples)
        EXPECT_EQ(bitsOf(sample), bitsOf(sampleOfLines()));
}

TEST(SessionFile, EveryFormReadsAsTheSameSession) {
    for (const char* end : {"\r\n", "\n"}) {
        expectSampleSession(readSession(sessionText(2, end)), 2);
        expectSampleSession(readSession(encipheredFile(sessionText(2, end), end)), 2);
        expectSampleSession(readSession("\xEF\xBB\xBF" + sessionText(1, end)), 1);
    }
    EXPECT_EQ(readSession(sessionText(0)).problem, (FileProblem{20, FileField::latitude, true}));
    EXPECT_EQ(readSession("").problem, (FileProblem{1, FileField::stationState, true}));
    std::string unended = sessionText(2);
    unended.resize(unended.size() - 2);
    expectSampleSession(readSession(unended), 2);
}

TEST(SessionFile, IsWrittenByteForByte) {
    const std::string text = sessionText(2);
    const SessionFile session = readSession(text);
    // A label without a code stands above, and is written so.
    std::string expected = text;
    expected.replace(expected.find(":loid:,ILS"), 10, ":loid:,ILS@u");
    EXPECT_EQ(writeSession(session, {}), expected);
    EXPECT_EQ(writeSession(session, 7), encipheredFile(expected));
}

TEST(SessionFile, NumbersOfEarlierInstallationsAreTaken) {
    for (const auto& [whole, minutes] :
         {std::pair(" 7 ", 7), {"\"7\"", 7}, {"+7", 7}, {"6.5", 6}, {"-7.5", -8}}) {
        const SessionFile session = readSession(sessionWith(headSize + 4, whole));
        ASSERT_EQ(session.samples.size(), 1U) << whole;
        EXPECT_EQ(session.samples[0].traceStopMinutes, minutes);
    }
}

TEST(SessionFile, MissingBlocksAreReadOver) {
    auto lines = sessionLines(1);
    lines.erase(lines.begin(), lines.begin() + 12); // comments and identifiers
    lines.erase(lines.begin() + 6);                 // the scale
    lines[5] = ":mc:,0";
    const SessionFile session = readSession(joinLines(lines, lines.size()));
    EXPECT_FALSE(session.problem);
    EXPECT_FALSE(session.stations[0].identifier);
    EXPECT_EQ(session.stations[0].state, (StationState{true, true, true}));
    EXPECT_FALSE(session.mapCenterSelect);
    EXPECT_FALSE(session.mapScaleTwips);
    EXPECT_EQ(session.samples.size(), 1U);
}

TEST(SessionFile, TruncatedAnywhereItKeepsItsWholeSamples) {
    const auto lines = sessionLines(2);
    const std::string text = sessionText(2);
    for (std::size_t kept = 3; kept < lines.size(); ++kept) {
        for (const bool enciphered : {false, true}) {
            const std::string body = joinLines(lines, kept);
            const SessionFile session = readSession(enciphered ? encipheredFile(body) : body);
            const std::size_t whole = kept < headSize ? 0 : (kept - headSize) / sampleSize;
            EXPECT_EQ(session.samples.size(), whole) << kept;
            EXPECT_EQ(session.comments.size(), 2U);
            const bool complete = whole > 0 && (kept - headSize) % sampleSize == 0;
            ASSERT_EQ(session.problem.has_value(), !complete) << kept;
            if (complete)
                continue;
            EXPECT_TRUE(session.problem->endOfFile);
            EXPECT_EQ(session.problem->line, static_cast<int>(kept) + (enciphered ? 5 : 1));
            EXPECT_EQ(errorNumber(*session.problem), 62);
        }
    }
    // At every byte, too, it ends in whole samples.
    for (std::size_t size = 0; size < text.size(); ++size) {
        const SessionFile session = readSession(text.substr(0, size));
        for (const Sample& sample : session.samples)
            ASSERT_EQ(bitsOf(sample), bitsOf(sampleOfLines())) << size;
    }
}

TEST(SessionFile, NamesTheLineThatIsWrong) {
    const std::tuple<std::size_t, const char*, FileField> cases[] = {
        {13, ":n1:,7", FileField::stationState}, {18, ":mc:,x", FileField::mapCentre},
        {19, ":ms:,wide", FileField::mapScale},  {20, "90.1", FileField::latitude},
        {20, "48,25", FileField::latitude},      {21, "inf", FileField::longitude},
        {22, "1e5", FileField::degrees},         {23, "32768", FileField::wholeNumber},
        {24, "1e300", FileField::wholeNumber},   {25, "", FileField::airspeed},
        {30, "-541", FileField::longitude},      {44, "nan", FileField::degrees},
        {58, "--", FileField::wholeNumber},      {59, "101", FileField::commentIndex},
        {59, "-2", FileField::commentIndex},
    };
    for (const auto& [line, text, wanted] : cases) {
        const SessionFile session = readSession(sessionWith(line, text));
        const FileProblem expected{static_cast<int>(line), wanted, false};
        EXPECT_EQ(session.problem, expected) << line << ' ' << text;
        EXPECT_TRUE(session.samples.empty());
        EXPECT_EQ(errorNumber(expected), 13);
    }
    EXPECT_FALSE(readSession(sessionWith(60, "anything")).problem);
}

TEST(SessionFile, TextsHaveABoundAndWhatIsWrittenKeepsIt) {
    const auto letters = [](int count) {
        std::string text;
        for (int i = 0; i < count; ++i)
            text += "ü";
        return text;
    };
    for (const auto& [line, tag, end, longest, field] :
         {std::tuple(2, ":c:", "", 4000, FileField::comment),
          {3, ":v1id:,", "@u", 40, FileField::identifier},
          {6, ":v2fr:,", "", 40, FileField::frequency}})
        for (const int beyond : {0, 1}) {
            const std::string text = tag + letters(longest + beyond) + end;
            EXPECT_EQ(readSession(sessionWith(static_cast<std::size_t>(line), text)).problem,
                      beyond ? std::optional(FileProblem{line, field, false}) : std::nullopt)
                << line;
        }
    SessionFile session = readSession(sessionText(1));
    session.comments[0] = letters(4001);
    session.stations[4].identifier = session.stations[4].frequency = letters(41);
    const SessionFile read = readSession(writeSession(session, {}));
    EXPECT_FALSE(read.problem);
    EXPECT_EQ(read.comments[0], letters(4000));
    EXPECT_EQ(read.stations[4].identifier, letters(40));
}

TEST(SessionFile, OnlyKeysFrom1To99AreTaken) {
    const std::string body = encipheredWithKey7(sessionText(1));
    const std::string head = stars + "\r\n" + "anything\r\n\r\n";
    for (const char* key : {"7", " 7", "07", "\"7\""})
        expectSampleSession(readSession(head + key + "\r\n" + body), 1);
    for (const char* key : {"0", "100", "-7", "7.5", "", "key", "7 7", "99999999999", "nan"})
        EXPECT_EQ(readSession(head + key + "\r\n" + body).problem,
                  (FileProblem{4, FileField::key, false}))
            << key;
    EXPECT_EQ(readSession(stars).problem, (FileProblem{2, FileField::key, true}));
}

TEST(SessionFile, SixThousandSamplesAreTheMost) {
    SessionFile session = readSession(sessionText(1));
    session.samples.resize(6000, session.samples[0]);
    const std::string full = writeSession(session, 99);
    EXPECT_EQ(readSession(full).samples.size(), 6000U);
    EXPECT_FALSE(readSession(full).problem);
    session.samples.push_back(session.samples[0]);
    const SessionFile read = readSession(writeSession(session, {}));
    EXPECT_EQ(read.samples.size(), 6000U);
    const FileProblem expected{headSize + 6000 * sampleSize + 1, FileField::noFurtherSample, false};
    ASSERT_EQ(read.problem, expected);
    EXPECT_EQ(errorNumber(expected), 9);
}

TEST(SessionFile, AHundredAndOneCommentsAreTheMost) {
    std::string comments;
    for (int i = 0; i < 101; ++i)
        comments += ":c:\r\n";
    const SessionFile read = readSession(comments + ":c:x\r\n" + sessionText(1));
    EXPECT_EQ(read.comments.size(), 101U);
    EXPECT_EQ(read.problem, (FileProblem{102, FileField::noFurtherComment, false}));
}

TEST(SessionFile, CommentsGoUpToTheHighestWithATextOrASample) {
    SessionFile session;
    session.comments = {"", "text", "", "", ""};
    session.samples.resize(2);
    for (const auto& [marked, count] : {std::pair(noComment, 2), {3, 4}, {6, 7}}) { // 6: none such
        session.samples[1].traceComment = static_cast<std::int16_t>(marked);
        const auto comments = readSession(writeSession(session, {})).comments;
        EXPECT_EQ(comments.size(), static_cast<std::size_t>(count)) << marked;
        EXPECT_EQ(comments[1], "text");
    }
}

TEST(SessionFile, TextsStayOneLineInEitherFormAndEncoding) {
    SessionFile session;
    session.comments = {"tab\tand\r\nbreak", "Flug über Köln", "\xFC"};
    session.stations[2].identifier = "MÜ";
    for (const auto& key : {std::optional<int>(), std::optional<int>(7), std::optional<int>(42)}) {
        const std::string bytes = writeSession(session, key);
        const SessionFile read = readSession(bytes);
        EXPECT_EQ(read.comments,
                  (std::vector<std::string>{"tab and  break", "Flug über Köln", "ü"}));
        EXPECT_EQ(read.stations[2].identifier, "MÜ");
        EXPECT_EQ(writeSession(read, key), bytes);
    }
    EXPECT_NE(writeSession(session, {})
                  .find(":c:Flug \xFC"
                        "ber K\xF6ln\r\n"),
              std::string::npos);
    session.comments[0] = "日本";
    EXPECT_EQ(readSession(writeSession(session, 7)).comments[0], "日本");
}

TEST(SessionFile, WhatIsNoNumberIsWrittenSoThatTheRestCanBeRead) {
    SessionFile session;
    session.samples.resize(1);
    session.samples[0].traceObsI2 = std::numeric_limits<double>::quiet_NaN();
    session.samples[0].traceObsI3 = std::numeric_limits<double>::infinity();
    session.samples[0].traceHeading = 5e-324;
    const SessionFile read = readSession(writeSession(session, {}));
    EXPECT_FALSE(read.problem);
    EXPECT_EQ(read.mapCenterSelect, 1);
    EXPECT_EQ(read.samples.at(0).traceObsI2, 0);
    EXPECT_EQ(read.samples.at(0).traceHeading, 5e-324);
}

double anyDegrees(double limit) {
    const auto part = *rc::gen::arbitrary<std::uint32_t>();
    const double value = (part / 2147483648.0 - 1) * limit;
    return std::nextafter(value, *rc::gen::element(0.0, value));
}

Sample anySample() {
    Sample sample = sampleOfLines();
    const auto any16 = [] { return *rc::gen::arbitrary<std::int16_t>(); };
    sample.traceLat = anyDegrees(89);
    sample.traceLon = anyDegrees(540);
    sample.traceHeading = anyDegrees(360);
    sample.traceObsI2 = anyDegrees(720);
    sample.traceTAS = *rc::gen::inRange<std::int16_t>(0, 1001);
    sample.traceTurnRate = any16();
    sample.traceHDGbug = any16();
    sample.traceComment = *rc::gen::inRange<std::int16_t>(-1, 101);
    for (GeoPosition& station : sample.traceStations)
        station = {anyDegrees(89), anyDegrees(540)};
    return sample;
}

RC_GTEST_PROP(SessionFile, SavedAndLoadedItIsTheSameBitForBit, ()) {
    SessionFile session;
    session.comments = *rc::gen::container<std::vector<std::string>>(
        rc::gen::container<std::string>(rc::gen::inRange(' ', '\x7f')));
    if (session.comments.size() > 101)
        session.comments.resize(101);
    const int count = *rc::gen::inRange(1, 20);
    for (int i = 0; i < count; ++i)
        session.samples.push_back(anySample());
    session.mapScaleTwips = *rc::gen::inRange<std::int16_t>(125, 1001);
    const std::string plain = writeSession(session, {});
    const int key = *rc::gen::inRange(1, 100);
    for (const SessionFile& read : {readSession(plain), readSession(writeSession(session, key))}) {
        RC_ASSERT(!read.problem);
        RC_ASSERT(writeSession(read, {}) == plain);
        RC_ASSERT(read.mapScaleTwips == session.mapScaleTwips);
        RC_ASSERT(read.samples.size() == session.samples.size());
        for (std::size_t i = 0; i < read.samples.size(); ++i)
            RC_ASSERT(std::bit_cast<std::uint64_t>(read.samples[i].traceLat) ==
                      std::bit_cast<std::uint64_t>(session.samples[i].traceLat));
    }
}

} // namespace
} // namespace tarnel
