#include "independent/course_bytes.h"

#include <GeographicLib/Rhumb.hpp>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <map>
#include <numbers>
#include <set>
#include <tuple>

namespace independent {
namespace {

constexpr double degree = std::numbers::pi / 180;
constexpr double halfStep = 2.5; ///< degrees, of a list in steps of five
constexpr double sampleTime = 4.0 / 3;
const std::string folder = TARNEL_APPLICATION_FOLDER "/default/";

double circle(double degrees) {
    return std::fmod(std::fmod(degrees, 360) + 360, 360);
}
double turn(double from, double to) {
    return std::remainder(to - from, 360);
}

double seconds(std::size_t from, std::size_t to) {
    return (static_cast<double>(to) - static_cast<double>(from)) * sampleTime;
}

struct Bearing {
    double degrees = 0;
    double miles = 0;
};
Bearing bearing(const Place& from, const Place& to) {
    Bearing found;
    GeographicLib::Rhumb::WGS84().Inverse(from.latitude, from.longitude, to.latitude, to.longitude,
                                          found.miles, found.degrees);
    return {circle(found.degrees), found.miles / 1852};
}

/// One question with its flight.
class Asked {
  public:
    Asked(const Question& of, const Session& flown, bool inGerman)
        : question(of), flight(flown), german(inGerman) {}

    const std::string& operator[](const std::string& column) const { return question[column]; }
    [[nodiscard]] double number(const std::string& column) const {
        return std::stod(question[column]);
    }
    [[nodiscard]] const Moment& first() const { return flight.moments.front(); }
    [[nodiscard]] const Moment& last() const { return flight.moments.back(); }
    [[nodiscard]] const std::vector<Moment>& moments() const { return flight.moments; }
    [[nodiscard]] std::size_t named(const std::string& column) const {
        return flight.named(question[column]);
    }
    [[nodiscard]] static double radial(const Moment& at, std::size_t slot) {
        return bearing(at.station(slot), at.aircraft()).degrees;
    }
    /// The first moment from which on the aircraft turns; the last one of the flight if it doesn't.
    [[nodiscard]] std::size_t turnFrom(std::size_t moment) const {
        while (moment + 1 < moments().size() && change(moment) == 0)
            ++moment;
        return moment;
    }
    /// The first one from which on it does not.
    [[nodiscard]] std::size_t turnEnd(std::size_t moment) const {
        while (moment + 1 < moments().size() && change(moment) != 0)
            ++moment;
        return moment;
    }
    [[nodiscard]] std::string side(std::size_t moment) const {
        return change(moment) > 0 ? "right" : "left";
    }
    /// Whether the turn that begins at `moment` is flown to a heading, from which it may go on
    /// along an arc or against the wind.
    [[nodiscard]] bool turnsTo(std::size_t moment, double heading) const {
        constexpr double betweenMoments = 6; // degrees
        const std::size_t end = turnEnd(moment);
        while (moment <= end &&
               (std::abs(turn(moments()[moment].demanded(), heading)) > 1 ||
                std::abs(turn(moments()[moment].heading(), heading)) > betweenMoments))
            ++moment;
        return moment <= end;
    }
    /// Degrees from one moment to the next, positive to the right.
    [[nodiscard]] double change(std::size_t moment) const {
        const double turned =
            turn(moments().at(moment).heading(), moments().at(moment + 1).heading());
        return std::abs(turned) < 0.1 ? 0 : turned;
    }
    /// The words of the language.
    [[nodiscard]] std::string word(const char* inGerman, const char* inEnglish) const {
        return german ? inGerman : inEnglish;
    }
    void expect(const std::string& column, double degrees, double within = halfStep) const {
        EXPECT_EQ(question[column].size(), 3U) << column;
        EXPECT_LE(std::abs(turn(number(column), degrees)), within) << column << ' ' << degrees;
    }

  private:
    const Question& question;
    const Session& flight;
    bool german;
};

/// "left", "right" or "stays", in a pair of words.
std::string trend(const Asked& asked, double change, const char* larger) {
    if (std::abs(change) < 0.5)
        return asked.word("gleich", "remain constant");
    return change > 0 ? asked.word(larger, "increase") : asked.word("kleiner", "decrease");
}

/// Degrees that the needle stands right of the middle.
double needle(const Moment& at) {
    const double off = turn(at.course(), Asked::radial(at, at.vor()));
    const double right = std::abs(off) < 90 ? -off : turn(180, off);
    return std::clamp(right, -10.0, 10.0);
}

void radialAndQdm(const Asked& asked) {
    const std::size_t station = asked.first().vor();
    EXPECT_EQ(asked.named("qa"), station);
    EXPECT_EQ(asked.named("qb"), station);
    asked.expect("a1", Asked::radial(asked.first(), station));
    asked.expect("a2", Asked::radial(asked.first(), station) + 180);
}

void checkHsi(const Asked& asked) {
    radialAndQdm(asked);
    const double move = needle(asked.last()) - needle(asked.first());
    if (std::abs(move) < 0.5) {
        EXPECT_EQ(asked["a3"], asked.word("Bleibt gleich", "Stays the same"));
        return;
    }
    // Square to the course arrow, which stands aslant on the face.
    const double angle = asked.first().course() - asked.first().heading() + (move > 0 ? 90 : -90);
    const std::pair<double, std::string> ways[] = {{0, asked.word("Nach vorne", "Forward")},
                                                   {180, asked.word("Nach hinten", "Backward")},
                                                   {270, asked.word("Nach links", "To the left")},
                                                   {90, asked.word("Nach rechts", "To the right")}};
    for (const auto& [way, word] : ways)
        EXPECT_EQ(asked["a3"].find(word) != std::string::npos, std::abs(turn(way, angle)) < 67.5)
            << word << ' ' << asked["a3"];
}

void checkVor(const Asked& asked) {
    radialAndQdm(asked);
    const double move = needle(asked.last()) - needle(asked.first());
    EXPECT_EQ(asked["a3"], std::abs(move) < 0.5 ? asked.word("Bleibt gleich", "Stays the same")
                           : move > 0           ? asked.word("Nach rechts", "To the right")
                                                : asked.word("Nach links", "To the left"));
}

/// The heading and the turn behind the fix, by the sectors of the entries.
void checkHolding(const Asked& asked, std::size_t fix) {
    const double heading = asked.number("a1");
    const double inbound = asked.number("a2");
    const double hand = asked["a3"] == "Standard" ? 1 : -1;
    asked.expect("a1", asked.first().heading(), 0.5);
    const double sector = circle(hand * (heading - inbound));
    // 110, 180 and 290 count for right turns as for left ones: 250, 180 and 70.
    const bool offset = sector > 110 && (hand > 0 ? sector <= 180 : sector < 180);
    const bool parallel = !offset && sector > 110 && sector < 290;
    const double behind = circle(inbound + (offset ? hand * 150 : 180));
    const std::string side = offset && heading == behind ? "maintain"
                             : offset                    ? heading > behind ? "left" : "right"
                             : (hand > 0) != parallel    ? "right"
                                                         : "left";
    std::size_t over = 0;
    while (over + 1 < asked.moments().size() &&
           std::cos((Asked::radial(asked.moments()[over], fix) - heading) * degree) < 0)
        ++over;
    const std::size_t turns = asked.turnFrom(over > 3 ? over - 3 : 0);
    if (side == "maintain") {
        EXPECT_GT(seconds(over, turns), 30);
        return;
    }
    EXPECT_LT(seconds(over, turns), 15) << "turns at the fix";
    EXPECT_EQ(asked.side(turns), side);
    EXPECT_TRUE(asked.turnsTo(turns, behind)) << behind;
}

void checkAdf(const Asked& asked) {
    const std::size_t station = asked.first().beacon();
    const double qdr = Asked::radial(asked.first(), station);
    const double move = turn(qdr, Asked::radial(asked.last(), station));
    asked.expect("a1", qdr);
    asked.expect("a3", qdr + 180);
    asked.expect("a5", qdr + 180 - asked.first().heading());
    EXPECT_EQ(asked["a2"], trend(asked, move, "größer"));
    EXPECT_EQ(asked["a4"], trend(asked, move, "größer"));
    const std::pair<const char*, std::string> offers[] = {
        {"a1", "abcd"}, {"a3", "efgh"}, {"a5", "ijkl"}};
    for (const auto& [answer, columns] : offers)
        EXPECT_EQ(std::count_if(columns.begin(), columns.end(),
                                [&](char column) {
                                    return asked[std::string{'q', column}] == asked[answer];
                                }),
                  1)
            << answer;
}

void checkIntercept(const Asked& asked, bool inbound) {
    const std::size_t station = asked.named("qa");
    const double required = asked.number("qa");
    const auto actual = [&](const Moment& at) {
        return circle(Asked::radial(at, station) + (inbound ? 180 : 0));
    };
    const auto angle = [&](const Moment& at) { return std::abs(turn(actual(at), required)); };
    asked.expect("a1", actual(asked.first()));
    const std::size_t turns = asked.turnFrom(0);
    const bool maintains = seconds(0, turns) > 30;
    EXPECT_EQ(asked["a3"], maintains ? "maintain" : asked.side(turns));
    const double heading = asked.number("a6");
    EXPECT_TRUE(maintains || asked.turnsTo(turns, heading)) << heading;
    const Moment& held = asked.moments().at(std::min<std::size_t>(turns, 12));
    const double grown = angle(held) - angle(asked.first());
    EXPECT_EQ(asked["a2"], trend(asked, std::abs(grown) < 0.3 ? 0 : 10 * grown, "grösser"));
    const double limit = inbound ? asked.number("a1") : required;
    EXPECT_EQ(asked["a4"], std::abs(heading - limit) < 1 ? "maintain"
                           : heading > limit             ? asked.word("grösser", "increase")
                                                         : asked.word("kleiner", "decrease"));
    EXPECT_LE(angle(asked.last()), halfStep);
}

void checkWind(const Asked& asked) {
    const Moment& at = asked.first();
    asked.expect("qa", at.windFrom(), 0);
    EXPECT_EQ(asked.number("qb"), at.windSpeed());
    // The course and the speed over the ground as they are flown.
    const Bearing flown = bearing(at.aircraft(), asked.moments().at(30).aircraft());
    const double speed = flown.miles / (30 * sampleTime) * 3600;
    EXPECT_LE(std::abs(turn(at.course(), flown.degrees)), 1);
    const double angle = (at.windFrom() - at.course()) * degree;
    const double head = at.windSpeed() * std::cos(angle);
    const double across = at.windSpeed() * std::sin(angle);
    const double correction = std::asin(across / at.tas()) / degree;
    const double along = at.tas() * std::cos(correction * degree);
    EXPECT_NEAR(speed, along - head, 1);
    const auto side = [&](const std::string& column, double amount) {
        EXPECT_EQ(asked[column], std::abs(amount) < 0.05 ? "-"
                                 : amount > 0            ? asked.word("rechts", "right")
                                                         : asked.word("links", "left"));
    };
    EXPECT_NEAR(asked.number("a1"), std::abs(head), 0.1);
    EXPECT_EQ(asked["a2"], std::abs(head) < 0.05 ? "-" : head > 0 ? "Head" : "Tail");
    EXPECT_NEAR(asked.number("a3"), std::abs(across), 0.1);
    side("a4", across);
    EXPECT_NEAR(asked.number("a5"), std::abs(correction), 0.1);
    side("a6", across);
    const double written = asked.number("a7");
    const double seconds = std::floor(written) * 60 + (written - std::floor(written)) * 100;
    EXPECT_NEAR(seconds, 60 * (along - head) / (along + head), 1.01);
}

void checkArc(const Asked& asked) {
    const std::size_t station = asked.first().vor();
    EXPECT_EQ(asked.named("qc"), station);
    const double final = asked.first().course();
    const std::size_t turns = asked.turnFrom(0);
    // Along the arc already, or along a radial.
    const double across = turn(Asked::radial(asked.first(), station), asked.first().heading());
    const bool maintains = std::abs(std::sin(across * degree)) > 0.7;
    EXPECT_EQ(asked["a1"], maintains ? "maintain" : asked.side(turns));
    if (maintains)
        asked.expect("a2", asked.first().heading(), 1);
    else
        EXPECT_TRUE(asked.turnsTo(turns, asked.number("a2"))) << asked["a2"];
    // Where the final course was demanded; small corrections may follow.
    std::size_t lead = asked.moments().size() - 1;
    while (std::abs(turn(asked.moments().at(lead).demanded(), final)) < 30)
        --lead;
    asked.expect("a3", Asked::radial(asked.moments()[lead], station));
    EXPECT_LE(std::abs(turn(Asked::radial(asked.last(), station) + 180, final)), halfStep);
}

void checkOrientation(const Asked& asked) {
    const double radial = Asked::radial(asked.first(), asked.named("qa"));
    asked.expect("a1", radial);
    asked.expect("a2", Asked::radial(asked.first(), asked.named("qb")) + 180);
    const double heading = asked.first().heading();
    const bool relative = asked["qc"].find("elative") != std::string::npos;
    if (relative) {
        asked.expect("a3", Asked::radial(asked.first(), asked.named("qc")) + 180 - heading);
    } else {
        asked.expect("a3", heading);
    }
}

const std::map<std::string, void (*)(const Asked&)> studies = {
    {"hsi", checkHsi},
    {"stdvor", checkVor},
    {"HSIHLD",
     [](const Asked& asked) {
         asked.expect("a2", asked.first().course(), 0.5);
         checkHolding(asked, asked.first().vor());
     }},
    {"dgHLD", [](const Asked& asked) { checkHolding(asked, asked.first().beacon()); }},
    {"adfpos", checkAdf},
    {"qdm", [](const Asked& asked) { checkIntercept(asked, true); }},
    {"qdr", [](const Asked& asked) { checkIntercept(asked, false); }},
    {"wind", checkWind},
    {"dmearc", checkArc},
    {"orientation", checkOrientation},
};

TEST(ShippedCourses, AreAnsweredAsTheirPositionsSay) {
    for (const auto& [name, check] : studies)
        for (const bool german : {true, false}) {
            const std::string study = (german ? "" : "e-") + name + ".sty";
            const std::vector<Question> questions = readStudyBytes(folder + "study/" + study, name);
            EXPECT_GE(questions.size(), 8U) << study;
            for (const Question& question : questions) {
                SCOPED_TRACE(study + ' ' + question["s"]);
                const Session session = readSessionBytes(folder + "sessions/" + question["s"]);
                check(Asked(question, session, german));
            }
        }
}

TEST(ShippedCourses, AskFromBothSidesOfEachLimitOfAHolding) {
    for (const char* name : {"HSIHLD", "dgHLD"}) {
        std::set<std::tuple<bool, int, bool>> sides;
        for (const Question& question : readStudyBytes(folder + "study/" + name + ".sty", name)) {
            const bool standard = question["a3"] == "Standard";
            const double angle = turn(std::stod(question["a2"]), std::stod(question["a1"]));
            for (const int limit : {-70, 110, 180}) {
                const double beyond = turn(standard ? limit : -limit, angle);
                if (beyond != 0 && std::abs(beyond) <= 5)
                    sides.insert({standard, limit, beyond > 0});
            }
        }
        EXPECT_EQ(sides.size(), 12U) << name;
    }
}

TEST(ShippedCourses, TurnLeftAboutAsOftenAsRight) {
    const std::map<std::string, const char*> turns = {
        {"qdm", "a3"}, {"qdr", "a3"}, {"dmearc", "a1"}};
    for (const auto& [name, column] : turns) {
        int right = 0;
        for (const Question& question : readStudyBytes(folder + "study/" + name + ".sty", name))
            right += question[column] == "right" ? 1 : question[column] == "left" ? -1 : 0;
        EXPECT_LE(std::abs(right), 4) << name;
    }
}

TEST(ShippedCourses, FlyTheSameInBothLanguages) {
    std::size_t pairs = 0;
    for (const auto& entry : std::filesystem::directory_iterator(folder + "sessions")) {
        const std::string name = entry.path().filename().string();
        SCOPED_TRACE(name);
        if (!name.starts_with("e-")) {
            EXPECT_FALSE(readSessionBytes(entry.path().string()).moments.empty());
            continue;
        }
        EXPECT_EQ(flightLines(entry.path().string()),
                  flightLines(folder + "sessions/" + name.substr(2)));
        ++pairs;
    }
    EXPECT_GT(pairs, 10U);
}

} // namespace
} // namespace independent
