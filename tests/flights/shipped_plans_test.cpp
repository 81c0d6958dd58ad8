#include "core/sailing.h"
#include "flights/flight_debrief.h"
#include "flights/flown_table.h"
#include "flights/plan_error.h"
#include "persistence/save_file.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

namespace tarnel {
namespace {

constexpr GeoPosition mun{48.180302, 11.816};
constexpr GeoPosition mne{48.3554, 11.676};

/// NM to the right of a course to or from `station`.
double crossTrack(const FlightRow& row, const GeoPosition& station, double course) {
    const CourseDistance from = CourseAndDistance(station, positionOf(row));
    return from.distance * std::sin((from.course - course) * 3.14159265358979323846 / 180);
}

// What an example promises holds while it is flown.
TEST(ShippedPlans, TrackHoldAndKeepTheirDistance) {
    const struct {
        const char* name;
        GeoPosition station;
        double course, from; ///< on which it ends; held from that second on
        int passages;        ///< of the station
        double arc;          ///< miles kept from 130 to 656 s
        double turned;       ///< degrees to the right, all in all
    } plans[] = {{"track_vor_inbound.toml", mun, 60, 400, 1, 0, -1000},
                 {"hold_over_ndb_with_wind.toml", mne, 90, 1e9, 4, 0, 3 * 360},
                 {"dme_arc.toml", mun, 90, 1e9, 0, 12, -1000}};
    for (const auto& plan : plans) {
        SCOPED_TRACE(plan.name);
        const auto rows = flownRows(readPlanFile(std::string(TARNEL_PLANS_FOLDER "/") + plan.name));
        double turned = 0;
        double heading = rows.front().heading;
        int passages = 0;
        bool near = false;
        for (const FlightRow& row : rows) {
            const double distance = CourseAndDistance(plan.station, positionOf(row)).distance;
            const double seconds = row.seconds;
            turned += std::remainder(row.heading - heading, 360.0);
            heading = row.heading;
            const bool passes = !near && distance < 0.3;
            passages += passes;
            near = distance < (near ? 1.5 : 0.3);
            if (passes || seconds >= plan.from) {
                EXPECT_LT(std::abs(crossTrack(row, plan.station, plan.course)), 0.3) << seconds;
            }
            if (plan.arc > 0 && seconds >= 130 && seconds <= 656) {
                EXPECT_NEAR(row.vor1.dme, plan.arc, 0.3) << seconds;
            }
        }
        EXPECT_EQ(passages, plan.passages);
        EXPECT_TRUE(plan.turned < 0 || std::abs(turned - plan.turned) < 1) << turned;
        EXPECT_LT(std::abs(crossTrack(rows.back(), plan.station, plan.course)), 0.3);
    }
}

TEST(ShippedPlans, AreWhatTheirTasksAsk) {
    for (const std::string name : {"track_vor_inbound", "hold_over_ndb_with_wind", "dme_arc"}) {
        const FlightPlan plan = readPlanFile(TARNEL_PLANS_FOLDER "/" + name + ".toml");
        ScriptedFlight flight(plan, germanTable(), TARNEL_DATA_FOLDER);
        flight.fly(plan.seconds, [] {});
        const std::string told = flightDebrief(flight, germanTable());
        EXPECT_THAT(told, testing::HasSubstr(" richtig: ")) << name;
        for (char digit = '0'; digit <= '9'; ++digit)
            for (const char* word : {" zu ", " falsch"})
                EXPECT_THAT(told, testing::Not(testing::HasSubstr(digit + std::string(word))))
                    << name;
    }
}

/// A flight is its own reference; a later start is not.
TEST(FlightDebrief, ReadsTheSessionBesideThePlan) {
    const TemporaryFolder folder;
    const std::string file = folder.path + "/plan.toml";
    FlightPlan plan =
        readPlan("seconds = 60\n[task]\nkind = \"reference\"\nsession = \"a.ts\"", file);
    ScriptedFlight flight(plan, englishTable(), TARNEL_DATA_FOLDER);
    flight.fly(60, [] {});
    EXPECT_THROW((void)flightDebrief(flight, englishTable()), PlanError);
    saveFileBytes(folder.path + "/a.ts", flight.form().UserControl11.sessionBytes());
    EXPECT_THAT(flightDebrief(flight, englishTable()),
                testing::HasSubstr("00:00 right: On average 0 NM off the reference"));
}

} // namespace
} // namespace tarnel
