#include "core/sailing.h"
#include "flights/flown_table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

namespace tarnel {
namespace {

constexpr GeoPosition mun{48.180302, 11.816};
constexpr GeoPosition mne{48.3554, 11.676};
constexpr double degree = 3.14159265358979323846 / 180;

std::vector<FlownRow> flyShipped(const std::string& name) {
    return flownRows(readPlanFile(TARNEL_PLANS_FOLDER "/" + name));
}

/// NM to the right of a course to or from `station`.
double crossTrack(const FlownRow& row, const GeoPosition& station, double course) {
    const CourseDistance from = CourseAndDistance(station, row.position());
    return from.distance * std::sin((from.course - course) * degree);
}

double distanceFrom(const FlownRow& row, const GeoPosition& station) {
    return CourseAndDistance(station, row.position()).distance;
}

/// The bearing from `station`, 0 to 360.
double radialFrom(const FlownRow& row, const GeoPosition& station) {
    return std::fmod(CourseAndDistance(station, row.position()).course + 360, 360);
}

TEST(ShippedPlans, VorIsTrackedInboundAndPassed) {
    const std::vector<FlownRow> rows = flyShipped("track_vor_inbound.toml");
    EXPECT_GT(std::abs(crossTrack(rows.front(), mun, 60)), 2);
    const auto established = std::find_if(rows.begin(), rows.end(), [](const FlownRow& row) {
        return row.text("inst3_deviation") == "0" && row.text("turn_rate") == "0";
    });
    ASSERT_NE(established, rows.end());
    EXPECT_GT(distanceFrom(*established, mun), 8); // in time for an inbound leg
    int flips = 0;
    std::string flag = "TO";
    for (auto row = established; row != rows.end(); ++row) {
        EXPECT_LT(std::abs(crossTrack(*row, mun, 60)), 0.3) << row->text("seconds");
        if (row->text("inst3_flag") == flag || row->text("inst3_flag") == "LOC")
            continue;
        flag = row->text("inst3_flag");
        ++flips;
        EXPECT_LT(distanceFrom(*row, mun), 0.3);
    }
    EXPECT_EQ(flips, 1);
    EXPECT_EQ(flag, "FROM");
    EXPECT_GT(distanceFrom(rows.back(), mun), 5);
}

TEST(ShippedPlans, HoldPassesTheBeaconAfterEachCircuit) {
    const std::vector<FlownRow> rows = flyShipped("hold_over_ndb_with_wind.toml");
    std::vector<double> passages;
    double turned = 0;
    double sinceFarAway = 0; // the closest since the beacon was last far away
    for (std::size_t i = 1; i < rows.size(); ++i) {
        const double distance = distanceFrom(rows[i], mne);
        const double change =
            std::remainder(rows[i].number("heading") - rows[i - 1].number("heading"), 360.0);
        EXPECT_GE(change, 0) << "a left turn at " << rows[i].text("seconds");
        turned += change;
        if (distance > 1.5)
            sinceFarAway = distance;
        else if (sinceFarAway > 0.5 && distance <= 0.5) {
            passages.push_back(rows[i].number("seconds"));
            EXPECT_LT(std::abs(crossTrack(rows[i], mne, 90)), 0.3);
            EXPECT_NEAR(rows[i].number("heading"), 97, 0.1);
            sinceFarAway = distance;
        }
    }
    ASSERT_EQ(passages.size(), 4U); // the arrival and three circuits
    for (std::size_t i = 1; i < passages.size(); ++i)
        EXPECT_NEAR(passages[i] - passages[i - 1], 246, 4);
    EXPECT_NEAR(turned, 3 * 360, 1);
}

TEST(ShippedPlans, ArcKeepsItsDistance) {
    const std::vector<FlownRow> rows = flyShipped("dme_arc.toml");
    double first = 360;
    double last = 0;
    for (const FlownRow& row : rows) {
        const double seconds = row.number("seconds");
        if (seconds < 130 || seconds > 656)
            continue;
        EXPECT_NEAR(row.number("nav1_dme"), 12, 0.3) << seconds;
        EXPECT_NEAR(distanceFrom(row, mun), 12, 0.3) << seconds;
        first = std::min(first, radialFrom(row, mun));
        last = std::max(last, radialFrom(row, mun));
    }
    EXPECT_LT(first, 185);
    EXPECT_GT(last, 265);
    EXPECT_LT(std::abs(crossTrack(rows.back(), mun, 90)), 0.3); // and then inbound
    EXPECT_EQ(rows.back().text("inst3_flag"), "TO");
    EXPECT_EQ(rows.back().text("inst3_deviation"), "0");
}

} // namespace
} // namespace tarnel
