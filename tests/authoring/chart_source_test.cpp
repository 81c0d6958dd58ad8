#include "authoring/chart_source.h"
#include "flights/plan_error.h"
#include "persistence/file_bytes.h"

#include <gtest/gtest.h>

namespace {

using namespace tarnel;

const std::string goodChart =
    "[[chart]]\n"
    "name = \"here\"\n"
    "vor = [\n"
    "{ name = \"AAA\", frequency = \"112.15\", latitude = 50.9, longitude = 7.9 },\n"
    "{ name = \"BBB\", frequency = \"113.30\", latitude = 50.2, longitude = 7.1, label = \"left\" "
    "}]\n"
    "ndb = [\n"
    "{ name = \"AAA\", frequency = \"301\", latitude = 50.5, longitude = 7.3 },\n"
    "{ name = \"D\", frequency = \"365\", latitude = 50.6, longitude = 7.2 }]\n"
    "[chart.localizer]\n"
    "name = \"IHER\"\n"
    "frequency = \"109.70\"\n"
    "threshold = { latitude = 50.51, longitude = 7.25 }\n"
    "far_end = { latitude = 50.54, longitude = 7.25 }\n";

TEST(ChartSource, PlacesTheLocalizerBehindTheRunwayAndTheAircraftAmidstTheStations) {
    const auto files = buildCharts(goodChart, "x.toml");
    ASSERT_EQ(files.size(), 1U);
    EXPECT_EQ(files[0].path, "maps/here.map");
    const ChartFile chart = readChart(files[0].bytes);
    ASSERT_FALSE(chart.problem);
    const GeoPosition antenna = *inSlot(chart.stations, Slot::localizer).position;
    EXPECT_NEAR((antenna.latitude - 50.54) * 60 * 1852, 300, 3);
    EXPECT_NEAR(antenna.longitude, 7.25, 1e-6);
    EXPECT_EQ(chart.locCourse, 180); // of the approach on 360, seen from the antenna
    EXPECT_NEAR(chart.aircraft->latitude, 50.55, 0.002);
    EXPECT_DOUBLE_EQ(chart.aircraft->longitude, 7.5);
    EXPECT_EQ(chart.mapScaleTwips, 129); // 42 NM high
    EXPECT_EQ(inSlot(chart.stations, Slot::vor2).labelOffsetX, -700);
    EXPECT_EQ(inSlot(chart.stations, Slot::ndb2).identifier, "D");
}

TEST(ChartSource, RefusesWhatIsWrongWithItsLine) {
    struct Fault {
        const char* good;
        const char* wrong;
        const char* told;
    };
    const Fault faults[] = {
        {"\"here\"", "\"../here\"", "x.toml:2: "},
        {"\"112.15\"", "\"107.95\"", "x.toml:4: "},
        {"\"113.30\"", "\"113.3\"", "x.toml:5: "},
        {"\"BBB\"", "\"AAA\"", "x.toml:5: "},
        {"\"left\"", "\"beside\"", "x.toml:5: "},
        {"\"301\"", "\"30100\"", "x.toml:7: "},
        {"latitude = 50.2,", "latitude = 48.2,", "x.toml:5: "},
        {"latitude = 50.6,", "", "x.toml:8: "},
        {"\"IHER\"", "\"iher\"", "x.toml:10: "},
        {"latitude = 50.54", "latitude = 51.54", "x.toml:9: "},
        {"far_end", "end", "x.toml:9: "},
        {"ndb = [\n{ name = \"AAA\", frequency = \"301\", latitude = 50.5, longitude = 7.3 },\n",
         "ndb = [\n", "x.toml:1: "},
    };
    for (const Fault& fault : faults) {
        std::string text = goodChart;
        text.replace(text.find(fault.good), std::string(fault.good).size(), fault.wrong);
        try {
            static_cast<void>(buildCharts(text, "x.toml"));
            ADD_FAILURE() << fault.wrong;
        } catch (const PlanError& error) {
            EXPECT_TRUE(std::string(error.what()).starts_with(fault.told)) << error.what();
        }
    }
}

TEST(ChartSource, MakesEveryChartThatIsShipped) {
    const std::string path = TARNEL_COURSES_FOLDER "/charts.toml";
    const std::string text = readFileBytes(path, std::size_t{1} << 20);
    EXPECT_TRUE(isChartSource(text, path));
    EXPECT_FALSE(isChartSource("chart = \"default\"\n", path));
    EXPECT_EQ(buildCharts(text, path).size(), 10U);
}

} // namespace
