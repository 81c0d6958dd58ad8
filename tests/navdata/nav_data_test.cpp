#include "core/run_time_error.h"
#include "navdata/nav_data.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <zlib.h>

namespace tarnel {
namespace {

using testing::ElementsAre;
using testing::Field;

std::string packed(const std::string& bytes) {
    std::string result(bytes.size() + 100, '\0');
    z_stream stream{};
    deflateInit2(&stream, 9, Z_DEFLATED, 16 + MAX_WBITS, 8, Z_DEFAULT_STRATEGY);
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(bytes.data()));
    stream.avail_in = static_cast<uInt>(bytes.size());
    stream.next_out = reinterpret_cast<Bytef*>(result.data());
    stream.avail_out = static_cast<uInt>(result.size());
    deflate(&stream, Z_FINISH);
    result.resize(stream.total_out);
    deflateEnd(&stream);
    return result;
}

/// Positions near Salzburg; the frequencies of the localizer and its DME are made up.
const std::string earlier =
    "I\n810 Version - data cycle 2013.10, build 20131335, metadata NavXP810.\n\n"
    "2  47.96749900   12.89410000   1411   382  50    0.000 SBG  SALZBURG NDB\n"
    "3  48.00260200   12.89280000   1411 11380 130    1.500 SBG  SALZBURG VOR-DME\n"
    "3  49.92110000    9.03981000    700 11550  40    0.500 CHA  CHARLIE VOR\n"
    "4  47.77950000   13.01590000   1411 10990  18   -23.000 OES  LOWS 15  ILS-cat-I\n"
    "6  47.80000000   13.00000000   1411 10990  10 300157.000 OES  LOWS 15  GS\n"
    "7  47.90000000   12.90000000   1411     0   0  157.000 ---- LOWS 15  OM\n"
    "12 47.78000000   13.01500000   1411 10990  18    0.000 OES  LOWS 15  DME-ILS\n"
    "12 12.00000000   13.01500000   1411 11550  18    0.000 CHA  ELSEWHERE DME\n"
    "99\nnothing is read from here on\n";

const std::string later =
    "A\r\n1150 Version - data cycle 2101, build 20210108, metadata NavXP1150.\r\n"
    "2  47.96749900   12.89410000   1411   382  50    0.000 SBG ENRT LO SALZBURG NDB\r\n"
    "3  48.00260200   12.89280000   1411 11380 130    1.500 SBG ENRT LO SALZBURG VOR/DME\r\n"
    "5  47.77950000   13.01590000   1411 10990  18 55957.250 OES LOWS LO 15 LOC\r\n"
    "16 47.0 13.0 0 99999 0 157.0 XYZ LOWS LO 15 WAAS\r\n99\r\n";

NavData read(const std::string& bytes) {
    return readNavData(bytes);
}
std::string with(std::string text, const std::string& old, const std::string& now) {
    return text.replace(text.find(old), old.size(), now);
}

TEST(NavDat, RowsAreReadAsTheirVersionHasThem) {
    const NavData old = read(earlier);
    EXPECT_FALSE(old.refused);
    EXPECT_EQ(old.wrongRows, 0);
    ASSERT_EQ(old.navaids.size(), 4U);
    EXPECT_THAT(old.navaids, ElementsAre(Field(&Navaid::kind, NavaidKind::beacon),
                                         Field(&Navaid::variation, 1.5), Field(&Navaid::hasDme, 0),
                                         Field(&Navaid::kind, NavaidKind::localizer)));
    EXPECT_EQ(old.navaids[0].frequency, 382);
    EXPECT_EQ(old.navaids[1].frequency, 113800);
    EXPECT_TRUE(old.navaids[1].hasDme);
    EXPECT_EQ(old.navaids[1].name, "SALZBURG VOR-DME");
    EXPECT_EQ(old.navaids[3].course, 337);
    EXPECT_TRUE(old.navaids[3].hasDme); // by the row of its DME

    EXPECT_EQ(read("\r\n" + earlier.substr(earlier.find("810"))).navaids.size(), 4U)
        << "FlightGear's own begins with an empty line";

    const NavData now = read(packed(later.substr(0, 90)) + packed(later.substr(90)));
    ASSERT_EQ(now.navaids.size(), 3U);
    EXPECT_EQ(now.version, 1150);
    EXPECT_EQ(now.navaids[1].position, (GeoPosition{48.002602, 12.8928}));
    EXPECT_EQ(now.navaids[1].name, "SALZBURG VOR/DME");
    EXPECT_TRUE(now.navaids[1].hasDme);
    EXPECT_EQ(now.navaids[1].airport, "");
    EXPECT_NEAR(now.navaids[2].course, 157.25, 1e-9);
    EXPECT_EQ(now.navaids[2].airport + now.navaids[2].runway, "LOWS15");
}

TEST(NavDat, AnotherKindIsRefusedWithItsLine) {
    const auto refusal = [](const std::string& bytes) {
        const NavData data = read(bytes);
        EXPECT_TRUE(data.navaids.empty());
        return data.refused.value_or(NavProblem{});
    };
    const std::string head = "I\n1100 Version - data cycle 1708, metadata FixXP1101.\n";
    EXPECT_EQ(refusal(""), (NavProblem{1, NavField::fileKind}));
    EXPECT_EQ(refusal(":v1id:,MUN@r\r\n"), (NavProblem{1, NavField::fileKind}));
    EXPECT_EQ(refusal("I\n"), (NavProblem{1, NavField::version}));
    EXPECT_EQ(refusal("I\n\n"), (NavProblem{2, NavField::version}));
    EXPECT_EQ(refusal("I\n740 Version"), (NavProblem{2, NavField::version}));
    EXPECT_EQ(refusal("I\n1201 Version"), (NavProblem{2, NavField::version}));
    EXPECT_EQ(refusal(head + "\n 47.4 -122.3 ALPHA ENRT K1\n99\n"),
              (NavProblem{4, NavField::rowCode}));
    EXPECT_EQ(refusal(head + "1 433 1 0 KSEA Seattle\n"), (NavProblem{3, NavField::rowCode}));
    const std::string whole = packed(earlier);
    EXPECT_EQ(refusal(whole.substr(0, whole.size() - 9)).expected, NavField::packed);
    EXPECT_EQ(refusal(with(whole, whole.substr(40, 9), "damaged!!")).expected, NavField::packed);
    EXPECT_GT(refusal(whole.substr(0, whole.size() - 9)).line, 3);
}

TEST(NavDat, AWrongRowIsLeftOutAndToldWithItsLine) {
    struct Wrong {
        const char* old;
        const char* now;
        int line;
        NavField expected;
    };
    const Wrong rows[] = {
        {"47.96749900", "97.96749900", 4, NavField::latitude},
        {"47.96749900", "nan", 4, NavField::latitude},
        {"12.89280000", "-180.1", 5, NavField::longitude},
        {"  382", "11380", 4, NavField::frequency},
        {"11380", "  382", 5, NavField::frequency},
        {"-23.000", "north", 7, NavField::course},
        {"50    0.000 SBG  SALZBURG NDB", "50", 4, NavField::fields},
        {"SBG  SALZ", "S@G  SALZ", 4, NavField::identifier},
    };
    for (const Wrong& row : rows) {
        const NavData data = read(with(earlier, row.old, row.now));
        EXPECT_EQ(data.navaids.size(), 3U) << row.now;
        EXPECT_EQ(data.wrongRows, 1);
        EXPECT_EQ(data.firstWrong, (NavProblem{row.line, row.expected})) << row.now;
    }
    EXPECT_EQ(read(earlier.substr(0, earlier.find("99\n"))).firstWrong,
              (NavProblem{12, NavField::lastRow}));
}

TEST(NavData, ThatUnpackBeyondAllBoundsAreRefused) {
    const std::string bomb = packed(std::string(largestNavData + 1, '\n'));
    EXPECT_LT(bomb.size(), 200'000U);
    EXPECT_THROW((void)read(bomb), RunTimeError);
}

const std::string navaids =
    "\"ident\",\"type\",name,extra,frequency_khz,latitude_deg,longitude_deg,"
    "magnetic_variation_deg,associated_airport\r\n"
    "\r\n"
    "\"FFM\",VORTAC,\"Frankfurt, \"\"Main\"\"\",\"two\r\nlines\",114200,50.05,8.63,0.5,EDDF\r\n"
    "CHA,VOR,Charlie,,115500,49.92,9.03,0.549,\r\n"
    "FW,NDB,N\xC3\xBCrnberg,,382.4,50.005,8.42,0.4,EDDF\r\n"
    "BAD,NDB,Row,,,50,8,,\r\n"
    "XYZ,TACAN,Row,,110000,50,8,,\r\n"
    "SHORT,NDB,Row,,382\r\n";

TEST(OurAirports, RecordsAreTakenByTheNamesOfTheirColumns) {
    const NavData data = read(navaids);
    ASSERT_EQ(data.navaids.size(), 3U);
    EXPECT_EQ(data.navaids[0].name, "Frankfurt, \"Main\"");
    EXPECT_TRUE(data.navaids[0].hasDme);
    EXPECT_EQ(data.navaids[0].airport, "EDDF");
    EXPECT_FALSE(data.navaids[1].hasDme);
    EXPECT_EQ(data.navaids[1].variation, 0.549);
    EXPECT_EQ(data.navaids[2].frequency, 382.4);
    EXPECT_EQ(data.wrongRows, 2);
    EXPECT_EQ(data.firstWrong, (NavProblem{7, NavField::frequency}));
    EXPECT_EQ(read(with(navaids, "latitude_deg", "lat")).refused,
              (NavProblem{1, NavField::fileKind}));
    EXPECT_EQ(read(with(navaids, "CHA", "\"CHA")).refused, (NavProblem{5, NavField::quoteEnd}));
}

TEST(OurAirports, LongRunwaysBecomeALocalizerForEachEnd) {
    const std::string runways =
        "airport_ident,length_ft,le_ident,le_latitude_deg,"
        "le_longitude_deg,he_ident,he_latitude_deg,he_longitude_deg,closed\n"
        "EDDM,13123,08L,48.3628,11.7676,26R,48.3669,11.8212,0\n"
        "EDXX,3999,08,48.3628,11.7676,26,48.3669,11.8212,0\n"
        "EDXX,9000,08,48.3628,11.7676,26,48.3669,11.8212,1\n"
        "EDXX,9000,08,48.3628,11.7676,26,,,0\n"
        "EDXX,9000,08,48.3628,11.7676,26,48.3669,14.8212,0\n";
    const NavData data = readRunways(runways);
    EXPECT_EQ(data.firstWrong, (NavProblem{6, NavField::course}));
    ASSERT_EQ(data.navaids.size(), 2U);
    const Navaid& west = data.navaids[1];
    EXPECT_EQ(west.identifier, "EDDM 26R");
    EXPECT_NEAR(west.course, 263.4, 0.2);
    EXPECT_LT(west.position.longitude, 11.7676);
    EXPECT_GT(data.navaids[0].position.longitude, 11.8212);
    EXPECT_FALSE(west.frequency);
}

} // namespace
} // namespace tarnel
