#include "flights/flight_summary.h"
#include "flights/flown_table.h"
#include "flights/plan_error.h"
#include "persistence/chart_file.h"
#include "persistence/file_bytes.h"
#include "persistence/session_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <vector>

namespace tarnel {
namespace {

constexpr auto busyPlan = R"(
seconds = 120
[aircraft]
latitude = 48.2
longitude = 11.5
heading = 350
tas = 180
[wind]
direction = 240
speed = 20
[radios]
nav1 = 1
adf = 1
[inst2]
type = "VOR"
obs = 90
[inst3]
type = "RMI"
[[event]]
at = 20
heading = 100
obs2 = 120
wind = "270/15"
[[event]]
at = 80
tas = 90
nav1 = 2
)";

std::string defaultChart() {
    return readFileBytes(TARNEL_DATA_FOLDER "/default.map", 1 << 20);
}

std::vector<FlownRow> fly(const std::string& plan) {
    return flownRows(readPlan(plan, "plan.toml"));
}

TEST(ScriptedFlight, BeginsAsThePlanSays) {
    const FlownRow start = fly(busyPlan).front();
    EXPECT_EQ(start.text("tick"), "0");
    EXPECT_EQ(start.position(), (GeoPosition{48.2, 11.5}));
    EXPECT_EQ(start.text("heading"), "350");
    EXPECT_EQ(start.text("turn_rate"), "0");
    EXPECT_EQ(start.text("tas"), "180");
    EXPECT_EQ(start.text("wind_direction"), "240");
    EXPECT_EQ(start.text("inst2_type"), "VOR");
    EXPECT_EQ(start.text("inst2_angle"), "270"); // course 90 under the index
    EXPECT_EQ(start.text("inst2_needle2"), start.text("nav2_radial"));
    EXPECT_EQ(start.text("inst3_type"), "RMI");
    EXPECT_NEAR(start.number("inst3_needle2"), start.number("nav4_radial") - 180 - 350, 1e-9);
    ScriptedFlight turned = flightOf(readPlan("seconds = 1\nnorth_up = false", "plan.toml"));
    EXPECT_EQ(turned.form().UserControl11.c_MAPnorthUP, 0);
}

TEST(ScriptedFlight, FollowsTheChartWhereThePlanIsSilent) {
    const ChartFile chart = readChart(defaultChart());
    const std::vector<FlownRow> rows = fly("seconds = 1");
    ASSERT_EQ(rows.size(), 4U);
    EXPECT_EQ(rows[0].position(), chart.aircraft);
    EXPECT_EQ(rows[0].number("heading"), chart.heading);
    EXPECT_EQ(rows[3].text("seconds"), "1");
    EXPECT_EQ(rows[3].text("tas"), "120");
    EXPECT_NE(rows[3].position(), chart.aircraft);
    EXPECT_EQ(rows[3].text("inst2_type"), "RMI");
    EXPECT_EQ(rows[3].text("inst3_type"), "HSI");
}

TEST(ScriptedFlight, TakesAnEventAtTheFirstTickAtOrAfterItsTime) {
    for (const auto& [at, first] : {std::pair("0", 0), {"1", 3}, {"1.1", 4}, {"1.34", 5}}) {
        const std::vector<FlownRow> rows = fly("seconds = 2\n[[event]]\nat = " + std::string(at) +
                                               "\nwind = \"360/40\"\ntas = 300\nheading = 90");
        for (int tick = 0; tick <= 6; ++tick) {
            const FlownRow& row = rows.at(static_cast<std::size_t>(tick));
            const bool taken = tick >= first;
            EXPECT_EQ(row.text("wind_speed"), taken ? "40" : "0") << at << ' ' << tick;
            EXPECT_EQ(row.text("tas"), taken ? "300" : "120") << at << ' ' << tick;
            EXPECT_EQ(row.text("turn_rate"), taken ? "3" : "0") << at << ' ' << tick;
        }
    }
    // Of two at the same time the one that stands later in the plan wins.
    EXPECT_EQ(fly("seconds = 1\n[[event]]\nat = 1\ntas = 90\n[[event]]\nat = 0.5\ntas = 200\n"
                  "[[event]]\nat = 1\ntas = 100")
                  .back()
                  .text("tas"),
              "100");
}

TEST(ScriptedFlight, FliesTheSameBytesTwice) {
    const FlightPlan plan = readPlan(busyPlan, "plan.toml");
    ScriptedFlight first = flightOf(plan);
    ScriptedFlight second = flightOf(plan);
    const std::string table = tableOf(first);
    EXPECT_EQ(table, tableOf(second));
    EXPECT_EQ(rowsOf(table).size(), 361U);

    // A flight that ends earlier is the beginning of the longer one.
    ScriptedFlight shorter = flightOf(plan);
    std::string beginning = flightCsvHeader();
    shorter.fly(33.4, [&] { beginning += flightCsvLine(presentRow(shorter)); });
    EXPECT_EQ(shorter.tick(), 101);
    EXPECT_TRUE(table.starts_with(beginning));
}

TEST(ScriptedFlight, WritesNumbersThatReadBack) {
    ScriptedFlight flight = flightOf(readPlan(busyPlan, "plan.toml"));
    flight.fly(50, [] {});
    const FlightRow row = presentRow(flight);
    const FlownRow read = rowsOf(flightCsvHeader() + flightCsvLine(row)).front();
    EXPECT_EQ(read.number("latitude"), row.latitude);
    EXPECT_EQ(read.number("seconds"), 50.0);
    EXPECT_EQ(read.number("nav1_radial"), row.vor1.radial);
    EXPECT_EQ(read.number("nav5_dme_gs"), row.localizer.dmeGroundSpeed);
    EXPECT_EQ(read.number("inst3_needle"), row.inst3.needle);
}

TEST(ScriptedFlight, CountsOnWhenABoxStopsIt) {
    ScriptedFlight flight =
        flightOf(readPlan("seconds = 3\n[aircraft]\nlatitude = 60\nlongitude = 11", "far.toml"));
    const std::vector<FlownRow> rows = rowsOf(tableOf(flight));
    ASSERT_EQ(rows.size(), 10U);
    EXPECT_EQ(rows.back().position(), (GeoPosition{60, 11}));
    EXPECT_EQ(rows.back().text("tick"), "9");
    EXPECT_TRUE(flight.stopped());
    ASSERT_EQ(flight.boxes().size(), 1U);
    EXPECT_EQ(flight.boxes()[0].tick, 0);
    EXPECT_THAT(flightSummary(flight), testing::HasSubstr("practise Area"));
    EXPECT_THAT(flightRemarks(flight), testing::EndsWith("stopped before its end.\n"));
}

TEST(ScriptedFlight, MarksTheSamplesWithItsComments) {
    ScriptedFlight flight = flightOf(readPlan(R"(
seconds = 20
[[event]]
at = 12
comment_end = true
[[event]]
at = 8
comment = "second"
[[event]]
at = 2
comment = "first"
)",
                                              "plan.toml"));
    flight.fly(20, [] {});
    const Recording& recording = flight.form().UserControl11.recording;
    const Comments& comments = flight.form().UserControl11.comments;
    EXPECT_EQ(comments.text(0), "first");
    EXPECT_EQ(comments.text(1), "second");
    std::vector<int> marks;
    for (int i = 1; i <= recording.sampleIndex(); ++i)
        marks.push_back(recording.at(i).traceComment);
    // Samples fall on ticks 3, 7, 11 and so on; an event is taken behind the sample of its tick.
    EXPECT_THAT(marks, testing::ElementsAre(-1, 0, 0, 0, 0, 0, 1, 1, 1, -1, -1, -1, -1, -1, -1));
}

class PlanWithChart : public testing::Test {
  protected:
    void SetUp() override { std::filesystem::create_directories(folder); }
    void TearDown() override { std::filesystem::remove_all(folder); }

    void writeChart(const std::string& text) const { std::ofstream(folder / "own.map") << text; }
    [[nodiscard]] FlightPlan plan(const std::string& chart) const {
        return readPlan("seconds = 1\nchart = \"" + chart + "\"", (folder / "plan.toml").string());
    }

    const std::filesystem::path folder =
        std::filesystem::path(testing::TempDir()) /
        testing::UnitTest::GetInstance()->current_test_info()->name();
};

TEST_F(PlanWithChart, FindsTheChartBesideThePlan) {
    std::istringstream lines(defaultChart());
    std::string chart;
    std::string line;
    for (int number = 1; std::getline(lines, line); ++number) {
        constexpr int latitude = 18;
        constexpr int longitude = 19;
        constexpr int heading = 20;
        if (number == latitude)
            line = "47.5";
        else if (number == longitude)
            line = "12";
        else if (number == heading)
            line = "200";
        chart += line + "\n";
    }
    writeChart(chart);
    const std::vector<FlownRow> rows = flownRows(plan("own.map"));
    EXPECT_EQ(rows[0].position(), (GeoPosition{47.5, 12}));
    EXPECT_EQ(rows.back().text("heading"), "200"); // the bug stands there, too
}

TEST_F(PlanWithChart, RefusesAChartThatCannotBeRead) {
    writeChart(":v1id:,ABC@r\n");
    for (const auto& [chart, expected] :
         {std::pair("own.map", "own.map"),
          std::pair("none.map", "none.map, There is no such file.")}) {
        try {
            (void)flightOf(plan(chart));
            ADD_FAILURE() << chart << " was taken";
        } catch (const PlanError& error) {
            EXPECT_EQ(error.line(), 2);
            EXPECT_THAT(error.expected(), testing::HasSubstr("a chart that can be read"));
            EXPECT_THAT(error.expected(), testing::HasSubstr(expected));
        }
    }
}

} // namespace
} // namespace tarnel
