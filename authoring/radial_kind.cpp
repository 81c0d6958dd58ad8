#include "authoring/question_kind.h"
#include "authoring/wording.h"
#include "strings/string_table.h"

#include <algorithm>
#include <cmath>

namespace tarnel {

namespace {

using enum StudyColumn;

constexpr double fullScale = 10; ///< degrees of a VOR's needle

const StringTable& tableOf(Language language) {
    return language == Language::german ? germanTable() : englishTable();
}

/// `RadialKind`: where the aircraft is from a VOR, read from a needle, and where that goes.
class RadialKind : public QuestionKind {
  public:
    void read(PlanTable& table, const AuthoredChart& chart, Situation& situation) const override {
        situation.station = readStation(table, "station", chart, isVor);
        situation.at = {readDirection(table, "radial"), readDistance(table, "distance")};
        situation.heading = readDirection(table, "heading");
        situation.course = readDirection(table, "course");
    }
    void solve(Pilot& pilot, const Situation& situation) const override {
        pilot.wait(situation.flown);
    }
    void check(const FlownSituation& flown, Findings& findings) const override;

  protected:
    /// What both ask.
    [[nodiscard]] static StudyRecord askPlace(const FlownSituation& flown, Language language);
    /// How far right of the middle the needle stands, seen along the course, as far as it goes.
    [[nodiscard]] static double needle(const FlownSituation& flown, const FlightRow& row);
    [[nodiscard]] static double needleMove(const FlownSituation& flown) {
        return needle(flown, flown.rows.back()) - needle(flown, flown.asked());
    }
};

double RadialKind::needle(const FlownSituation& flown, const FlightRow& row) {
    const Situation& situation = flown.situation;
    const double radial = flown.from(situation.station, row).radial;
    const double fromCourse = turnBetween(situation.course, radial);
    const double deviation =
        std::abs(fromCourse) < 90 ? -fromCourse : turnBetween(situation.course, radial + 180);
    return std::clamp(deviation, -fullScale, fullScale);
}

StudyRecord RadialKind::askPlace(const FlownSituation& flown, Language language) {
    const LocalText name = same(flown.chart.identifier(flown.situation.station));
    const double radial = flown.from(flown.situation.station, flown.asked()).radial;
    StudyRecord record;
    record[qa] = worded(Phrase::askRadial, {name}).in(language);
    record[qb] = worded(Phrase::askQdm, {name}).in(language);
    record[ans1] = threeDigits(radial);
    record[ans2] = threeDigits(radial + 180);
    return record;
}

void RadialKind::check(const FlownSituation& flown, Findings& findings) const {
    const double move = std::abs(needleMove(flown));
    if (move > steadyNeedle && move < seenNeedle)
        findings.push_back({flown.situation.line, "the needle moves too little to be seen and too "
                                                  "much to stand still"});
}

class HsiKind : public RadialKind {
  public:
    [[nodiscard]] FlightPlan start(const Situation& situation,
                                   const AuthoredChart& chart) const override;
    [[nodiscard]] StudyRecord ask(const FlownSituation& flown, Language language) const override;

  private:
    [[nodiscard]] static std::string barMoves(const FlownSituation& flown,
                                              const StringTable& texts);
};

FlightPlan HsiKind::start(const Situation& situation, const AuthoredChart& chart) const {
    FlightPlan plan =
        planFrom(placeOn(chart.position(situation.station), situation.at), situation, chart);
    const auto slot = static_cast<std::int16_t>(situation.station);
    const auto course = static_cast<std::int16_t>(situation.course);
    plan.start.nav1 = plan.start.nav2 = plan.start.dme = slot;
    plan.inst2 = {.type = displayOf("VOR"), .receiver = std::int16_t{2}};
    plan.inst3 = {.type = displayOf("HSI"), .receiver = std::int16_t{1}};
    plan.start.obs2 = plan.start.obs3 = course;
    return plan;
}

/// The directions on the face of the HSI in which the bar moves, which lies square to the course:
/// one, or two if it slants.
std::string HsiKind::barMoves(const FlownSituation& flown, const StringTable& texts) {
    const double move = needleMove(flown);
    if (std::abs(move) < steadyNeedle)
        return std::string(texts[Text::moveNone]);
    const double toTheRight = flown.situation.course - flown.situation.heading + 90;
    const double angle = move > 0 ? toTheRight : toTheRight + 180;
    constexpr double aside = 67.5; // halfway between a slanting movement and a square one
    std::vector<std::string> moves;
    for (const auto& [direction, text] :
         {std::pair(0, Text::moveForward), std::pair(180, Text::moveBackward),
          std::pair(270, Text::moveLeft), std::pair(90, Text::moveRight)})
        if (std::abs(turnBetween(direction, angle)) < aside)
            moves.emplace_back(texts[text]);
    return moves.size() == 1 ? moves.front() : "+" + moves[0] + "+" + moves[1] + "+";
}

StudyRecord HsiKind::ask(const FlownSituation& flown, Language language) const {
    StudyRecord record = askPlace(flown, language);
    record[qc] = worded(Phrase::askHsiBar).in(language);
    record[ans3] = barMoves(flown, tableOf(language));
    return record;
}

class VorKind : public RadialKind {
  public:
    [[nodiscard]] FlightPlan start(const Situation& situation,
                                   const AuthoredChart& chart) const override {
        FlightPlan plan =
            planFrom(placeOn(chart.position(situation.station), situation.at), situation, chart);
        plan.start.nav1 = plan.start.dme = static_cast<std::int16_t>(situation.station);
        plan.inst2 = {.type = displayOf("DG")};
        plan.inst3 = {.type = displayOf("VOR"), .receiver = std::int16_t{1}};
        plan.start.obs3 = static_cast<std::int16_t>(situation.course);
        return plan;
    }
    [[nodiscard]] StudyRecord ask(const FlownSituation& flown, Language language) const override {
        StudyRecord record = askPlace(flown, language);
        const double move = needleMove(flown);
        record[qc] = worded(Phrase::askVorNeedle).in(language);
        record[ans3] = tableOf(language)[std::abs(move) < steadyNeedle ? Text::moveNone
                                         : move > 0                    ? Text::moveRight
                                                                       : Text::moveLeft];
        return record;
    }
};

} // namespace

std::unique_ptr<QuestionKind> makeHsiKind() {
    return std::make_unique<HsiKind>();
}

std::unique_ptr<QuestionKind> makeVorKind() {
    return std::make_unique<VorKind>();
}

} // namespace tarnel
