#include "content/flown_question.h"

#include <gtest/gtest.h>

#include <cmath>

namespace tarnel {
namespace {

using enum StudyColumn;

constexpr double degree = 3.14159265358979323846 / 180;
constexpr double zero = 0.05; ///< what is nothing when written in tenths

struct WindTriangle {
    double head = 0;         ///< knots against the inbound course; a tail wind is negative
    double fromRight = 0;    ///< knots
    double correction = 0;   ///< degrees to the right
    double inboundSpeed = 0; ///< over the ground, knots
    double outboundSpeed = 0;
};

WindTriangle triangleOf(const FlightRow& row, double inbound) {
    WindTriangle triangle;
    const double angle = (row.windDirection - inbound) * degree;
    triangle.head = row.windSpeed * std::cos(angle);
    triangle.fromRight = row.windSpeed * std::sin(angle);
    triangle.correction = std::asin(triangle.fromRight / row.tas) / degree;
    const double along = row.tas * std::cos(triangle.correction * degree);
    triangle.inboundSpeed = along - triangle.head;
    triangle.outboundSpeed = along + triangle.head;
    return triangle;
}

std::string side(const StudyLanguage& language, double fromRight) {
    return std::abs(fromRight) < zero ? "-" : fromRight > 0 ? language.right : language.left;
}

/// "minutes.seconds" in seconds.
double secondsOf(const std::string& text) {
    const auto point = text.find('.');
    EXPECT_EQ(text.size(), point + 3) << text;
    return std::stod(text.substr(0, point)) * 60 + std::stod(text.substr(point + 1));
}

TEST(WindQuestions, AreSolvedByTheWindTriangle) {
    forEachQuestion(8, [](const StudyLanguage& language, const StudyRecord& record,
                          const FlownQuestion& flown) {
        const FlightRow& asked = flown.asked();
        const double inbound = *flown.plan.start.obs3;
        EXPECT_EQ(std::stod(record[qa]), asked.windDirection);
        EXPECT_EQ(std::stod(record[qb]), asked.windSpeed);
        const WindTriangle wind = triangleOf(asked, inbound);
        EXPECT_NEAR(std::stod(record[ans1]), std::abs(wind.head), 0.1);
        EXPECT_NEAR(std::stod(record[ans3]), std::abs(wind.fromRight), 0.1);
        EXPECT_NEAR(std::stod(record[ans5]), std::abs(wind.correction), 0.1);
        EXPECT_EQ(record[ans2], std::abs(wind.head) < zero ? "-" : wind.head > 0 ? "Head" : "Tail");
        EXPECT_EQ(record[ans4], side(language, wind.fromRight));
        EXPECT_EQ(record[ans6], side(language, wind.fromRight));
        // "Zero" is right only for a plain 0.
        EXPECT_EQ(record[ans2] == "-", record[ans1] == "0");
        EXPECT_EQ(record[ans4] == "-", record[ans3] == "0");
        // The outbound leg is as long over the ground as a minute inbound.
        EXPECT_NEAR(secondsOf(record[ans7]), 60 * wind.inboundSpeed / wind.outboundSpeed, 1);
    });
}

TEST(WindQuestions, AreFlownAlongTheInboundCourse) {
    forEachQuestion(8, [](const auto&, const StudyRecord&, const FlownQuestion& flown) {
        const double inbound = *flown.plan.start.obs3;
        const WindTriangle wind = triangleOf(flown.asked(), inbound);
        const Slot station = flown.navStation();
        constexpr std::size_t overhead = 62 * 3;
        for (std::size_t tick = 1; tick < overhead; ++tick) {
            EXPECT_NEAR(turnBetween(flown.rows[tick].track, inbound), 0, 1) << tick;
            EXPECT_NEAR(flown.rows[tick].groundSpeed, wind.inboundSpeed, 1) << tick;
        }
        EXPECT_NEAR(turnBetween(radialAt(flown.asked(), station) + 180, inbound), 0, 1);
        // A minute later the station has been passed.
        const double behind = radialAt(flown.rows[overhead + 3], station) - inbound;
        EXPECT_GT(std::cos(behind * degree), 0.7);
    });
}

} // namespace
} // namespace tarnel
