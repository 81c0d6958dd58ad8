#include "persistence/chart_file.h"
#include "support/enciphered.h"
#include "support/sample_chart.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <iterator>
#include <map>

namespace tarnel {
namespace {

constexpr std::size_t lineCount = 31;

std::string encipheredChart(const std::string& plain) {
    const std::string stars(54, '*');
    return stars + "\r\n***** !DO NOT EDIT! *** Tarnel - .map file         ***\r\n" + stars +
           "\r\n7\r\n" + encipheredWithKey7(plain);
}

TEST(ChartReader, ReadsAGoodFile) {
    const ChartFile chart = readChart(joinLines(sampleChartLines(), lineCount));
    EXPECT_FALSE(chart.problem);
    using Expected = std::tuple<std::string, std::string, int, int, StationState, GeoPosition>;
    const Expected expected[slotCount] = {
        {"ALB", "112.30", -200, -555, {true, true, true}, {48.5, 11.75}},
        {"BRK", "108.40", 200, -190, {false, true, false}, {48.125, 10.5}},
        {"CA", "338", -700, -190, {true, false, true}, {47.75, -0.5}},
        {"DU", "369", -200, 135, {true, false, false}, {-33.5, 151.25}},
        {"ILS EAST", "108.70", -200, -555, {true, false, true}, {48.35, 11.6}},
    };
    for (std::size_t slot = 0; slot < slotCount; ++slot) {
        const ChartStation& read = chart.stations[slot];
        EXPECT_TRUE(Expected(*read.identifier, *read.frequency, read.labelOffsetX,
                             read.labelOffsetY, *read.state, *read.position) == expected[slot])
            << slot;
    }
    EXPECT_EQ(
        std::tuple(chart.mapCenterSelect, chart.mapScaleTwips, chart.heading, chart.locCourse),
        std::tuple(1, 333, 0, 83));
    EXPECT_EQ(chart.aircraft, (GeoPosition{48.25, 11.5}));
}

TEST(ChartReader, KnowsEveryStateCode) {
    const std::pair<const char*, StationState> codes[] = {
        // of a VOR and of an NDB
        {":n1:,0", {false, false, false}}, {":n1:,1", {true, true, false}},
        {":n1:,2", {true, true, true}},    {":n1:,3", {true, false, false}},
        {":n1:,4", {true, false, true}},   {":n1:,5", {false, true, false}},
        {":n1:,6", {false, true, true}},   {":n3:,0", {false, false, false}},
        {":n3:,1", {true, false, true}},   {":n3:,2", {true, false, false}}};
    for (const auto& [line, state] : codes) {
        const bool ndb = line[2] == '3';
        EXPECT_EQ(readChart(chartWith(ndb ? 13 : 11, line)).stations[ndb ? 2 : 0].state, state)
            << line;
    }
}

TEST(ChartReader, TakesScalesFromHalfToFour) {
    for (const auto& [text, twips] : {std::pair("0.5", 1000),
                                      {"4", 125},
                                      {"3", 167},
                                      {".8", 625},
                                      {"0.4", 0},
                                      {"4.1", 0},
                                      {"-2", 0},
                                      {"0", 0}}) {
        const ChartFile chart = readChart(chartWith(17, std::string(":ms:,") + text));
        EXPECT_EQ(chart.mapScaleTwips.value_or(0), twips) << text;
        EXPECT_FALSE(chart.problem) << text;
        EXPECT_EQ(chart.locCourse, 83) << text;
    }
}

TEST(ChartReader, GoesByPositionAndNotByTag) {
    auto lines = sampleChartLines();
    lines[4] = ":n1id:,K\xD6LN@r";
    for (std::size_t i = 1; i < 16; ++i)
        lines[i].replace(0, 3, "zzz");
    lines.erase(lines.begin() + 16); // no scale: the next line is the latitude
    std::string text = joinLines(lines, lines.size(), "\n");
    text.pop_back(); // the last line may lack its end
    const ChartFile chart = readChart(text);
    EXPECT_FALSE(chart.problem);
    EXPECT_EQ(chart.stations[2].identifier, "KÖLN");
    EXPECT_EQ(chart.stations[4].identifier, "ILS EAST");
    EXPECT_EQ(chart.locCourse, 83);
    EXPECT_FALSE(chart.mapScaleTwips);
    EXPECT_EQ(chart.aircraft, (GeoPosition{48.25, 11.5}));
}

TEST(ChartReader, StationBlockMayBeMissing) {
    auto lines = sampleChartLines();
    lines.erase(lines.begin(), lines.begin() + 10);
    const ChartFile chart = readChart(joinLines(lines, lines.size()));
    EXPECT_FALSE(chart.problem);
    EXPECT_FALSE(chart.stations[0].identifier);
    EXPECT_FALSE(chart.stations[4].frequency);
    EXPECT_EQ(chart.stations[1].state, (StationState{false, true, false}));
    EXPECT_EQ(chart.locCourse, 83);
}

TEST(ChartReader, LabelCodesThatMeanNothingStandAbove) {
    for (const char* line : {":v2id:,BRK@x", ":v2id:,BRK@", ":v2id:,BRK"}) {
        const ChartStation station = readChart(chartWith(3, line)).stations[1];
        EXPECT_EQ(station.identifier, "BRK") << line;
        EXPECT_EQ(station.labelOffsetX, -200) << line;
        EXPECT_EQ(station.labelOffsetY, -555) << line;
    }
    EXPECT_EQ(readChart(chartWith(3, ":v2id:,")).stations[1].identifier, "");
}

TEST(ChartReader, NamesTheLineWhereAFileIsTruncated) {
    const std::map<char, FileField> fields = {
        {'i', FileField::identifier},     {'f', FileField::frequency},
        {'s', FileField::stationState},   {'n', FileField::ndbState},
        {'m', FileField::mapCentre},      {'a', FileField::latitude},
        {'o', FileField::longitude},      {'h', FileField::heading},
        {'c', FileField::localizerCourse}};
    // What line 17 holds is told by its tag, so without it the latitude is missed.
    const std::string missed = "ifififififssnnsmaaohoaoaoaoaoac";
    const auto lines = sampleChartLines();
    for (std::size_t kept = 1; kept < lineCount; ++kept) {
        const ChartFile chart = readChart(joinLines(lines, kept));
        const FileProblem expected{static_cast<int>(kept) + 1, fields.at(missed[kept]), true};
        EXPECT_EQ(chart.problem, expected) << kept;
        EXPECT_EQ(chart.stations[0].identifier, "ALB");
        EXPECT_EQ(chart.aircraft.has_value(), kept >= 19) << kept;
        EXPECT_EQ(chart.stations[4].position.has_value(), kept >= 30) << kept;
    }
}

TEST(ChartReader, NamesTheLineThatIsWrong) {
    const std::tuple<std::size_t, const char*, FileField> cases[] = {
        {2, ":v1fr", FileField::frequency},        {3, "", FileField::identifier},
        {11, ":n1:,7", FileField::stationState},   {12, ":n2:,-1", FileField::stationState},
        {15, ":n1:,1.5", FileField::stationState}, {15, ":n1:,", FileField::stationState},
        {13, ":n3:,3", FileField::ndbState},       {14, "n4", FileField::ndbState},
        {16, ":mc:,32768", FileField::mapCentre},  {16, ":mc:,one", FileField::mapCentre},
        {17, ":ms:,wide", FileField::mapScale},    {18, "90", FileField::latitude},
        {18, "48,25", FileField::latitude},        {19, "540.1", FileField::longitude},
        {19, "nan", FileField::longitude},         {20, "east", FileField::heading},
        {20, "-361", FileField::heading},          {21, "1e999", FileField::longitude},
        {22, "-89.5", FileField::latitude},        {31, "", FileField::localizerCourse},
    };
    for (const auto& [line, text, wanted] : cases) {
        const ChartFile chart = readChart(chartWith(line, text));
        const FileProblem expected{static_cast<int>(line), wanted, false};
        EXPECT_EQ(chart.problem, expected) << line << ' ' << text;
    }
}

TEST(ChartReader, EncipheredFileReadsAsThePlainOne) {
    const auto lines = sampleChartLines();
    const std::string plain = joinLines(lines, lines.size());
    const ChartFile chart = readChart(encipheredChart(plain));
    EXPECT_FALSE(chart.problem);
    EXPECT_EQ(writeChart(chart, {}), writeChart(readChart(plain), {}));
    EXPECT_EQ(chart.stations[4].identifier, "ILS EAST");
    EXPECT_EQ(readChart(std::string(54, '*') + "\r\n\r\n\r\n100\r\n").problem,
              (FileProblem{4, FileField::key, false}));
    EXPECT_EQ(readChart(encipheredChart(chartWith(19, "east"))).problem,
              (FileProblem{23, FileField::longitude, false}));
}

TEST(ChartWriter, WritesEveryLineByteForByte) {
    ChartFile chart = readChart(joinLines(sampleChartLines(), lineCount));
    chart.mapCenterSelect = 3; // always 1 in the file
    chart.heading = 271;       // always 0
    chart.mapScaleTwips = 250;
    chart.aircraft = GeoPosition{48.29, -11.5};
    auto expected = sampleChartLines();
    expected[8] = ":loid:,ILS EAST@u";
    expected[16] = ":ms:,2";
    expected[17] = "48.29";
    expected[18] = "-11.29"; // with the minutes of the latitude
    const std::string plain = joinLines(expected, lineCount);
    EXPECT_EQ(writeChart(chart, {}), plain);
    EXPECT_EQ(writeChart(chart, 7), encipheredChart(plain));
    chart.aircraft = GeoPosition{48.5, -540}; // the minutes don't lead out of what can be read
    EXPECT_FALSE(readChart(writeChart(chart, {})).problem);
}

TEST(ChartWriter, EveryStateAndLabelHasALine) {
    ChartFile chart;
    const auto lineOf = [&chart](std::size_t number) {
        const std::string text = writeChart(chart, {});
        std::size_t start = 0;
        for (std::size_t line = 1; line < number; ++line)
            start = text.find('\n', start) + 1;
        return text.substr(start, text.find('\r', start) - start);
    };
    for (const bool station : {false, true})
        for (const bool dme : {false, true})
            for (const bool button : {false, true}) {
                chart.stations[4].state = chart.stations[3].state =
                    StationState{station, dme, button};
                const ChartFile read = readChart(writeChart(chart, {}));
                const bool noCode = !station && !dme;
                EXPECT_EQ(read.stations[4].state, (StationState{station, dme, button && !noCode}));
                EXPECT_EQ(lineOf(14), station != button ? ":n4:,2" : station ? ":n4:,1" : ":n4:,0");
            }
    chart.stations[1].identifier = "A@B";
    chart.stations[1].labelOffsetX = 200;
    EXPECT_EQ(lineOf(3), ":v2id:,AB"); // 200, -555 is none of the four
    chart.stations[1].labelOffsetY = -190;
    EXPECT_EQ(lineOf(3), ":v2id:,AB@r");
    EXPECT_EQ(lineOf(17), "0"); // no scale, so the latitude
}

RC_GTEST_PROP(ChartWriter, SavedLoadedAndSavedAgainTheBytesAreTheSame, ()) {
    ChartFile chart = readChart(joinLines(sampleChartLines(), lineCount));
    const auto anyPlace = [] {
        const auto part = [] { return *rc::gen::arbitrary<std::uint32_t>() / 4294967296.0; };
        const double span = *rc::gen::element(0.01, 1.0, 178.0);
        return GeoPosition{(part() - 0.5) * span, (part() - 0.5) * 2 * span};
    };
    for (ChartStation& station : chart.stations)
        station.position = anyPlace();
    chart.aircraft = anyPlace();
    const auto throughDegreesAndMinutes = [](ChartFile read) {
        for (ChartStation& station : read.stations)
            station.position = toPlain(toSplit(*station.position));
        read.aircraft = toPlain(toSplit(*read.aircraft));
        return read;
    };
    const std::string once = writeChart(throughDegreesAndMinutes(chart), {});
    const std::string twice = writeChart(throughDegreesAndMinutes(readChart(once)), {});
    RC_ASSERT(twice == once);
    RC_ASSERT(writeChart(readChart(writeChart(readChart(once), 42)), {}) == once);
}

} // namespace
} // namespace tarnel
