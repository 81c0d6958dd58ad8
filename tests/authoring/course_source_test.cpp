#include "authoring/chart_source.h"
#include "authoring/course_source.h"
#include "flights/plan_error.h"
#include "persistence/session_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace {

using namespace tarnel;

TEST(CourseSource, LetsASituationNameItsOwnChartAndABeaconBeCalledAsAVor) {
    const std::filesystem::path folder =
        std::filesystem::path(testing::TempDir()) / "charts_of_situations";
    std::filesystem::create_directories(folder);
    std::ifstream source(TARNEL_COURSES_FOLDER "/charts.toml");
    const std::string text(std::istreambuf_iterator<char>(source), {});
    for (const BuiltFile& file : buildCharts(text, "charts.toml"))
        std::ofstream(folder / std::filesystem::path(file.path).filename()) << file.bytes;

    const std::string place = "radial = 180, distance = 5, heading = 270 },\n";
    const CourseSource course =
        readCourse("exercise = \"adfpos\"\nchart = \"eddk\"\nsituation = [\n"
                   "{ station = \"LJ\", " +
                       place + "{ chart = \"lowg\", station = \"GRZ\", " + place + "]\n",
                   "x.toml", ChartShelf({folder.string()}));
    ASSERT_EQ(course.situations.size(), 2U);
    EXPECT_EQ(course.situations[0].station, Slot::ndb2);
    EXPECT_EQ(&course.chartOf(course.situations[0]), &course.chart);
    EXPECT_EQ(course.situations[1].station, Slot::ndb1); // VOR 1 is called GRZ, too
    EXPECT_NEAR(course.chartOf(course.situations[1]).position(Slot::ndb1).latitude, 46.9207, 1e-6);

    // Where either may be meant the kind is said.
    const auto askedOf = [&](const std::string& station) {
        return readCourse("exercise = \"qdm\"\nchart = \"lowg\"\nsituation = [\n{ station = \"" +
                              station + "\", required = 10, " + place + "]\n",
                          "x.toml", ChartShelf({folder.string()}))
            .situations.front()
            .station;
    };
    EXPECT_EQ(askedOf("VOR GRZ"), Slot::vor1);
    EXPECT_EQ(askedOf("NDB GRZ"), Slot::ndb1);
    try {
        askedOf("GRZ");
        FAIL() << "one of two stations is taken";
    } catch (const PlanError& error) {
        EXPECT_THAT(error.what(),
                    testing::AllOf(testing::HasSubstr("x.toml:4"), testing::HasSubstr("VOR GRZ")));
    }
    const BuiltFile other = buildCourse(course, TARNEL_DATA_FOLDER).files.at(3);
    EXPECT_THAT(readSession(other.bytes).comments.front(),
                testing::HasSubstr("QDM = HDG + RB: 270 + 090 = 000."))
        << other.path;
}

} // namespace
