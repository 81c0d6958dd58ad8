#include "flights/flight_summary.h"
#include "flights/flown_table.h"
#include "flights/plan_error.h"
#include "persistence/chart_file.h"
#include "persistence/file_bytes.h"
#include "support/temporary_folder.h"
#include "support/told.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>
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

std::vector<FlightRow> fly(const std::string& plan) {
    return flownRows(readPlan(plan, "plan.toml"));
}

TEST(ScriptedFlight, BeginsAsThePlanSays) {
    const FlightRow start = fly(busyPlan).front();
    EXPECT_EQ(positionOf(start), (GeoPosition{48.2, 11.5}));
    EXPECT_EQ(told(start.tick, start.heading, start.turnRate, start.tas, start.windDirection,
                   start.inst2.type, start.inst2.angle, start.inst3.type),
              told(0, 350, 0, 180, 240, vor, 270, rmi)); // course 90 under the index
    EXPECT_EQ(start.inst2.needle2, start.vor2.radial);
    EXPECT_NEAR(start.inst3.needle2, start.ndb2Radial - 180 - 350, 1e-9);
    ScriptedFlight turned = flightOf(readPlan("seconds = 1\nnorth_up = false", "plan.toml"));
    EXPECT_EQ(turned.form().UserControl11.c_MAPnorthUP, 0);
}

TEST(ScriptedFlight, FollowsTheChartWhereThePlanIsSilent) {
    const ChartFile chart = readChart(defaultChart());
    const std::vector<FlightRow> rows = fly("seconds = 1");
    ASSERT_EQ(rows.size(), 4U);
    EXPECT_EQ(positionOf(rows[0]), chart.aircraft);
    EXPECT_NE(positionOf(rows[3]), chart.aircraft);
    EXPECT_EQ(rows[0].heading, chart.heading);
    EXPECT_EQ(told(rows[3].seconds, rows[3].tas, rows[3].inst2.type, rows[3].inst3.type),
              told(1, 120, rmi, hsi));
}

TEST(ScriptedFlight, TakesAnEventAtTheFirstTickAtOrAfterItsTime) {
    for (const auto& [at, first] : {std::pair("0", 0), {"1", 3}, {"1.1", 4}, {"1.34", 5}}) {
        const std::vector<FlightRow> rows = fly("seconds = 2\n[[event]]\nat = " + std::string(at) +
                                                "\nwind = \"360/40\"\ntas = 300\nheading = 90");
        for (const FlightRow& row : rows)
            EXPECT_EQ(told(row.windSpeed, row.tas, row.turnRate),
                      row.tick >= first ? "40 300 3" : "0 120 0")
                << at << ' ' << row.tick;
    }
    // Of two at the same time the one that stands later in the plan wins.
    EXPECT_EQ(fly("seconds = 1\n[[event]]\nat = 1\ntas = 90\n[[event]]\nat = 0.5\ntas = 200\n"
                  "[[event]]\nat = 1\ntas = 100")
                  .back()
                  .tas,
              100);
}

TEST(ScriptedFlight, FliesTheSameBytesTwice) {
    const FlightPlan plan = readPlan(busyPlan, "plan.toml");
    const auto table = [&](double seconds) {
        ScriptedFlight flight = flightOf(plan);
        std::string text = flightCsvHeader();
        flight.fly(seconds, [&] { text += flightCsvLine(presentRow(flight)); });
        return text;
    };
    const std::string whole = table(plan.seconds);
    EXPECT_EQ(whole, table(plan.seconds));
    EXPECT_EQ(std::ranges::count(whole, '\n'), 1 + 361);
    const std::string beginning = table(33.4);
    EXPECT_EQ(std::ranges::count(beginning, '\n'), 1 + 102);
    EXPECT_TRUE(whole.starts_with(beginning)) << "a flight that ends earlier is the beginning";
}

TEST(ScriptedFlight, WritesNumbersThatReadBack) {
    ScriptedFlight flight = flightOf(readPlan(busyPlan, "plan.toml"));
    flight.fly(50, [] {});
    const FlightRow row = presentRow(flight);
    std::istringstream names(flightCsvHeader());
    std::istringstream values(flightCsvLine(row));
    std::map<std::string, std::string> read;
    for (std::string name, value; std::getline(names, name, ',');) {
        ASSERT_TRUE(std::getline(values, value, ',')) << name;
        read[name] = value;
    }
    for (const auto& [name, number] : {std::pair("latitude", row.latitude),
                                       {"seconds", 50},
                                       {"nav1_radial", row.vor1.radial},
                                       {"nav5_dme_gs", double(row.localizer.dmeGroundSpeed)},
                                       {"inst3_needle", row.inst3.needle}})
        EXPECT_EQ(std::stod(read[name]), number) << name;
    EXPECT_EQ(read["inst2_type"] + read["inst3_type"], "VORRMI");
}

TEST(ScriptedFlight, CountsOnWhenABoxStopsIt) {
    ScriptedFlight flight =
        flightOf(readPlan("seconds = 3\n[aircraft]\nlatitude = 60\nlongitude = 11", "far.toml"));
    const std::vector<FlightRow> rows = rowsOf(flight);
    ASSERT_EQ(rows.size(), 10U);
    EXPECT_EQ(positionOf(rows.back()), (GeoPosition{60, 11}));
    EXPECT_EQ(rows.back().tick, 9);
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
    void writeChart(const std::string& text) const { std::ofstream(folder / "own.map") << text; }
    [[nodiscard]] FlightPlan plan(const std::string& chart) const {
        return readPlan("seconds = 1\nchart = \"" + chart + "\"", (folder / "plan.toml").string());
    }

    const TemporaryFolder temporary;
    const std::filesystem::path folder = temporary.at;
};

TEST_F(PlanWithChart, FindsTheChartBesideThePlan) {
    std::istringstream lines(defaultChart());
    std::map<int, std::string> own{{18, "47.5"}, {19, "12"}, {20, "200"}}; // place and heading
    std::string chart;
    std::string line;
    for (int number = 1; std::getline(lines, line); ++number)
        chart += (own.contains(number) ? own[number] : line) + "\n";
    writeChart(chart);
    const std::vector<FlightRow> rows = flownRows(plan("own.map"));
    EXPECT_EQ(positionOf(rows[0]), (GeoPosition{47.5, 12}));
    EXPECT_EQ(rows.back().heading, 200); // the bug stands there, too
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
