#include "content/flown_question.h"

#include <gtest/gtest.h>

#include <cmath>

namespace tarnel {
namespace {

TEST(PracticeFlights, DifferBetweenTheLanguagesInTheirCommentsAlone) {
    std::vector<std::string> names = {"introduction 1", "introduction 2"};
    for (const char* kind : {"adf practise ", "vor practise "})
        for (int number = 1; number <= 10; ++number)
            names.push_back(kind + std::to_string(number).insert(0, number < 10 ? "0" : ""));
    for (const std::string& name : names) {
        SCOPED_TRACE(name);
        const FlownQuestion& german = flownQuestion(name);
        const FlownQuestion& english = flownQuestion("e-" + name);
        EXPECT_EQ(german.boxes, 0U);
        ASSERT_EQ(german.rows.size(), english.rows.size());
        for (std::size_t tick = 0; tick < german.rows.size(); ++tick)
            ASSERT_EQ(flightCsvLine(german.rows[tick]), flightCsvLine(english.rows[tick]));
        ASSERT_EQ(german.plan.events.size(), english.plan.events.size());
        EXPECT_EQ(german.plan.events.front().at, 0); // the task is told at once
        for (std::size_t i = 0; i < german.plan.events.size(); ++i) {
            const FlightEvent& left = german.plan.events[i];
            const FlightEvent& right = english.plan.events[i];
            EXPECT_EQ(left.at, right.at);
            EXPECT_EQ(left.settings.comment.has_value(), right.settings.comment.has_value());
        }
        EXPECT_NE(german.plan.events.front().settings.comment,
                  english.plan.events.front().settings.comment);
    }
}

/// The bearing that a practice flight ends on, and from which station it is measured.
struct Goal {
    const char* flight;
    Slot station;
    double bearing; ///< from the station
};

constexpr Goal goals[] = {
    {"adf practise 01", Slot::ndb2, 25},  {"adf practise 03", Slot::ndb1, 305},
    {"adf practise 04", Slot::ndb1, 210}, {"adf practise 05", Slot::ndb1, 65},
    {"adf practise 06", Slot::ndb1, 345}, {"adf practise 07", Slot::ndb2, 170},
    {"adf practise 10", Slot::ndb1, 250}, {"vor practise 03", Slot::vor1, 240},
    {"vor practise 04", Slot::vor1, 225}, {"vor practise 05", Slot::vor2, 110},
    {"vor practise 06", Slot::vor2, 40},  {"vor practise 09", Slot::vor1, 155},
    {"vor practise 10", Slot::vor2, 60},
};

TEST(PracticeFlights, EndWhereTheirTasksLead) {
    for (const Goal& goal : goals) {
        const FlightRow& end = flownQuestion(goal.flight).rows.back();
        EXPECT_NEAR(turnBetween(goal.bearing, radialAt(end, goal.station)), 0, 2) << goal.flight;
        EXPECT_LT(std::abs(std::sin((end.track - goal.bearing) * 3.14159265358979323846 / 180)),
                  0.06)
            << goal.flight;
    }
}

} // namespace
} // namespace tarnel
