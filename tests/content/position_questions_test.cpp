#include "content/flown_question.h"
#include "strings/text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>

namespace tarnel {
namespace {

using enum StudyColumn;

using testing::Contains;
using testing::HasSubstr;

constexpr double fullScale = 10; ///< degrees of a VOR's needle

/// Where the course line lies, degrees to the right of the course arrow, as far as a needle goes.
double needleAt(const FlightRow& row, Slot station, double course) {
    const double fromStation = turnBetween(course, radialAt(row, station));
    const double deviation = std::abs(fromStation) < 90
                                 ? -fromStation
                                 : turnBetween(course, radialAt(row, station) + 180);
    return std::clamp(deviation, -fullScale, fullScale);
}

struct NeedleMove {
    double first = 0; ///< deviation where the question stands
    double change = 0;
};

NeedleMove needleMove(const FlownQuestion& flown) {
    const double course = *flown.plan.start.obs3;
    const double first = needleAt(flown.asked(), flown.navStation(), course);
    return {first, needleAt(flown.rows.back(), flown.navStation(), course) - first};
}

constexpr double steady = 0.5; ///< degrees that count as no movement
constexpr double seen = 2;     ///< degrees that can be seen to move

/// The directions, on the face of the HSI, in which a bar moves that lies square to the course.
std::set<std::string> barMoves(const StringTable& texts, const FlownQuestion& flown) {
    const NeedleMove move = needleMove(flown);
    if (std::abs(move.change) < steady)
        return {std::string(texts[Text::moveNone])};
    EXPECT_GT(std::abs(move.change), seen);
    const double right = *flown.plan.start.obs3 - flown.asked().heading + 90;
    const double angle = move.change > 0 ? right : right + 180;
    constexpr double aside = 67.5; // halfway between a slanting movement and a square one
    std::set<std::string> moves;
    for (const auto& [direction, text] :
         {std::pair(0, Text::moveForward), std::pair(90, Text::moveRight),
          std::pair(180, Text::moveBackward), std::pair(270, Text::moveLeft)}) {
        if (std::abs(turnBetween(direction, angle)) < aside)
            moves.emplace(texts[text]);
    }
    return moves;
}

/// One text, or two, each closed by a plus, behind a plus.
std::set<std::string> acceptedTexts(const std::string& answer) {
    if (!answer.starts_with('+'))
        return {answer};
    EXPECT_TRUE(answer.ends_with('+'));
    const auto middle = answer.find('+', 1);
    return {answer.substr(1, middle - 1), answer.substr(middle + 1, answer.size() - middle - 2)};
}

/// A list holds 000, 005 and so on.
void expectPickable(const std::string& direction) {
    EXPECT_EQ(std::stoi(direction) % 5, 0) << direction;
    EXPECT_LT(std::stoi(direction), 360) << direction;
}

void expectRadialAndQdm(const StudyRecord& record, const FlownQuestion& flown) {
    const Slot station = flown.navStation();
    const double radial = radialAt(flown.asked(), station);
    for (const StudyColumn prompt : {qa, qb})
        EXPECT_THAT(record[prompt], HasSubstr(flown.identifier(station)));
    expectPickable(record[ans1]);
    expectPickable(record[ans2]);
    expectDirection(record[ans1], radial);
    expectDirection(record[ans2], radial + 180);
    // Beyond the end of the scale the radial could not be read.
    EXPECT_LT(std::abs(needleMove(flown).first), fullScale - 1);
}

TEST(HsiQuestions, TellWhereTheBarGoes) {
    forEachQuestion(1, [](const StudyLanguage& language, const StudyRecord& record,
                          const FlownQuestion& flown) {
        expectRadialAndQdm(record, flown);
        EXPECT_NE(record[ans1], "355"); // the first list has no such item
        EXPECT_EQ(acceptedTexts(record[ans3]), barMoves(language.texts, flown));
    });
}

TEST(VorQuestions, TellWhereTheNeedleGoes) {
    forEachQuestion(2, [](const StudyLanguage& language, const StudyRecord& record,
                          const FlownQuestion& flown) {
        expectRadialAndQdm(record, flown);
        const double change = needleMove(flown).change;
        EXPECT_TRUE(std::abs(change) < steady || std::abs(change) > seen) << change;
        EXPECT_EQ(record[ans3], language.texts[std::abs(change) < steady ? Text::moveNone
                                               : change > 0              ? Text::moveRight
                                                                         : Text::moveLeft]);
    });
}

/// Four different offers, the right one among them.
void expectOffered(const std::set<std::string>& offers, const std::string& answer) {
    EXPECT_EQ(offers.size(), 4U) << answer;
    EXPECT_THAT(offers, Contains(answer));
}

TEST(AdfQuestions, TellBearingsAndTheirTrend) {
    forEachQuestion(5, [](const StudyLanguage& language, const StudyRecord& record,
                          const FlownQuestion& flown) {
        const Slot station = flown.adfStation();
        const double radial = radialAt(flown.asked(), station);
        expectDirection(record[ans1], radial);
        expectDirection(record[ans3], radial + 180);
        expectDirection(record[ans5], radial + 180 - flown.asked().heading);
        expectOffered({record[qa], record[qb], record[qc], record[qd]}, record[ans1]);
        expectOffered({record[qe], record[qf], record[qg], record[qh]}, record[ans3]);
        expectOffered({record[qi], record[qj], record[qk], record[ql]}, record[ans5]);

        const double last = radialAt(flown.rows.back(), station);
        const double change = turnBetween(radial, last);
        const std::string_view trend = language.texts[std::abs(change) < steady ? Text::trendSame
                                                      : change > 0              ? Text::trendLarger
                                                                   : Text::trendSmaller];
        EXPECT_EQ(record[ans2], trend);
        EXPECT_EQ(record[ans4], trend);
        // A value that passes north would grow and get smaller at once.
        EXPECT_EQ(circle(last) > circle(radial), change > 0);
        EXPECT_EQ(circle(last + 180) > circle(radial + 180), change > 0);
    });
}

TEST(OrientationQuestions, TellWhatTheChartShows) {
    const std::set<std::string> list = {"030", "045", "060", "090", "120", "135", "150", "180",
                                        "210", "225", "240", "270", "300", "315", "330", "360"};
    forEachQuestion(10, [&](const auto&, const StudyRecord& record, const FlownQuestion& flown) {
        for (const StudyColumn answer : {ans1, ans2, ans3})
            EXPECT_THAT(list, Contains(record[answer]));
        EXPECT_THAT(record[qa], HasSubstr(flown.identifier(Slot::vor1)));
        EXPECT_THAT(record[qb], HasSubstr(flown.identifier(Slot::vor2)));
        const FlightRow& asked = flown.asked();
        expectDirection(record[ans1], asked.vor1.radial);
        expectDirection(record[ans2], asked.vor2.radial + 180);
        const bool heading = record[qc].find("HDG") != std::string::npos;
        if (!heading) {
            EXPECT_THAT(record[qc], HasSubstr(flown.identifier(Slot::vor1)));
        }
        expectDirection(record[ans3],
                        heading ? asked.heading : asked.vor1.radial + 180 - asked.heading);
    });
}

} // namespace
} // namespace tarnel
