#include "authoring/question_kind.h"
#include "authoring/wording.h"
#include "strings/string_table.h"

#include <algorithm>
#include <cmath>

namespace tarnel {

namespace {

using enum StudyColumn;

const StringTable& tableOf(Language language) {
    return language == Language::german ? germanTable() : englishTable();
}

/// `RadialKind`: where the aircraft is from a VOR, read from a needle, and where that goes.
class RadialKind : public QuestionKind {
  public:
    void read(PlanTable& table, const AuthoredChart& chart, Situation& situation) const override {
        readPlace(table, chart, isVor, situation);
        situation.heading = readDirection(table, "heading");
        situation.course = readDirection(table, "course");
    }
    void solve(Pilot& pilot, const Situation& situation) const override;
    void check(const FlownSituation& flown, SourceFindings& findings) const override;

  protected:
    /// What the needle does: to the right if `move` is positive.
    [[nodiscard]] virtual LocalText moved(const Situation& situation, double move) const = 0;
    [[nodiscard]] virtual Phrase needleName() const = 0;
    /// What both ask.
    [[nodiscard]] static StudyRecord askPlace(const FlownSituation& flown, Language language);
    /// How far right of the middle the needle stands, seen along the course, as far as it goes.
    [[nodiscard]] static double needle(const FlownSituation& flown, const FlightRow& row);
    [[nodiscard]] static double needleMove(const FlownSituation& flown) {
        return needle(flown, flown.rows.back()) - needle(flown, flown.asked());
    }
};

LocalText side(double toTheRight) {
    return worded(toTheRight < 0 ? Phrase::left : Phrase::right);
}

/// QDM or radial at the start, as it follows from the needle.
LocalText reading(double courseSet, double radial) {
    const double fromCourse = turnBetween(courseSet, radial);
    const bool from = std::abs(fromCourse) < 90;
    const double off =
        std::round(from ? -fromCourse : turnBetween(courseSet, radial + 180)); // to the right
    return worded(from ? Phrase::readFrom : Phrase::readTo,
                  {direction(courseSet), number(std::abs(off)), side(off),
                   same((off > 0) == from ? "-" : "+"), direction(from ? radial : radial + 180)});
}

/// The one of both that was not read.
LocalText reciprocal(double courseSet, double radial) {
    const LocalText qdm = direction(radial + 180);
    return std::abs(turnBetween(courseSet, radial)) < 90
               ? worded(Phrase::qdmOfRadial, {direction(radial), qdm})
               : worded(Phrase::radialOfQdm, {qdm, direction(radial)});
}

/// How the radial has gone since the start.
class RadialChange {
  public:
    RadialChange(const Situation& of, double from, double to)
        : situation(of), before(from), after(to) {}

    [[nodiscard]] bool isNone() const {
        return std::abs(turnBetween(before, after)) < steadyNeedle;
    }
    /// Of the needle, to the right.
    [[nodiscard]] double move() const {
        const bool from = std::abs(turnBetween(situation.course, before)) < 90;
        return turnBetween(before, after) * (from ? -1 : 1);
    }
    [[nodiscard]] LocalText why(double track) const {
        if (isNone()) {
            const bool outbound = std::abs(turnBetween(track, before)) < 90;
            return worded(Phrase::flownAlong,
                          {direction(situation.heading), direction(before + (outbound ? 0 : 180)),
                           direction(before)});
        }
        return worded(Phrase::lineMoves, {direction(before), direction(after), side(move())});
    }

  private:
    const Situation& situation;
    double before;
    double after;
};

void RadialKind::solve(Pilot& pilot, const Situation& situation) const {
    pilot.wait(FlownSituation::askedTick * simTimeStep);
    const double asked = pilot.from(situation.station).radial;
    const auto change = [&] {
        return RadialChange(situation, asked, pilot.from(situation.station).radial);
    };
    flyStraightOn(pilot, situation,
                  {[&] { return reading(situation.course, asked); },
                   [&] { return reciprocal(situation.course, asked); },
                   [&] { return change().why(pilot.now().track); },
                   [&] {
                       return change().isNone() ? worded(Phrase::needleStands,
                                                         {direction(asked), worded(needleName())})
                                                : moved(situation, change().move());
                   }});
}

double RadialKind::needle(const FlownSituation& flown, const FlightRow& row) {
    const Situation& situation = flown.situation;
    const double radial = flown.from(situation.station, row).radial;
    const double fromCourse = turnBetween(situation.course, radial);
    const double deviation =
        std::abs(fromCourse) < 90 ? -fromCourse : turnBetween(situation.course, radial + 180);
    return std::clamp(deviation, -vorFullScale, vorFullScale);
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

void RadialKind::check(const FlownSituation& flown, SourceFindings& findings) const {
    const double move = std::abs(needleMove(flown));
    if (move > steadyNeedle && move < seenNeedle)
        findings.push_back({flown.situation.line, "the needle moves too little to be seen and too "
                                                  "much to stand still"});
}

/// A direction in which the bar of an HSI moves on its face.
struct FaceWay {
    double direction; ///< degrees from the top
    Text text;        ///< in the exercise's list
    Phrase phrase;
};

class HsiKind : public RadialKind {
  public:
    [[nodiscard]] FlightPlan start(const Situation& situation,
                                   const AuthoredChart& chart) const override;
    [[nodiscard]] StudyRecord ask(const FlownSituation& flown, Language language) const override;

  protected:
    [[nodiscard]] LocalText moved(const Situation& situation, double move) const override;
    [[nodiscard]] Phrase needleName() const override { return Phrase::theBar; }

  private:
    /// The bar lies square to the course, so it moves one way, or two if the course slants.
    [[nodiscard]] static std::vector<FaceWay> barWays(const Situation& situation, double move);
    [[nodiscard]] static std::string barMoves(const FlownSituation& flown,
                                              const StringTable& texts);
};

FlightPlan HsiKind::start(const Situation& situation, const AuthoredChart& chart) const {
    FlightPlan plan = planAt(situation, chart);
    const auto slot = static_cast<std::int16_t>(situation.station);
    const auto course = static_cast<std::int16_t>(situation.course);
    plan.start.nav1 = plan.start.nav2 = plan.start.dme = slot;
    plan.inst2 = {.type = displayOf("VOR"), .receiver = std::int16_t{2}};
    plan.inst3 = {.type = displayOf("HSI"), .receiver = std::int16_t{1}};
    plan.start.obs2 = plan.start.obs3 = course;
    return plan;
}

std::vector<FaceWay> HsiKind::barWays(const Situation& situation, double move) {
    constexpr FaceWay all[] = {{0, Text::moveForward, Phrase::forward},
                               {180, Text::moveBackward, Phrase::backward},
                               {270, Text::moveLeft, Phrase::toTheLeft},
                               {90, Text::moveRight, Phrase::toTheRight}};
    const double toTheRight = situation.course - situation.heading + 90;
    const double angle = move > 0 ? toTheRight : toTheRight + 180;
    constexpr double aside = 67.5; // halfway between a slanting movement and a square one
    std::vector<FaceWay> ways;
    for (const FaceWay& way : all)
        if (std::abs(turnBetween(way.direction, angle)) < aside)
            ways.push_back(way);
    return ways;
}

std::string HsiKind::barMoves(const FlownSituation& flown, const StringTable& texts) {
    const double move = needleMove(flown);
    if (std::abs(move) < steadyNeedle)
        return std::string(texts[Text::moveNone]);
    const std::vector<FaceWay> ways = barWays(flown.situation, move);
    const std::string first(texts[ways.front().text]);
    return ways.size() == 1 ? first : "+" + first + "+" + std::string(texts[ways[1].text]) + "+";
}

LocalText HsiKind::moved(const Situation& situation, double move) const {
    const std::vector<FaceWay> ways = barWays(situation, move);
    const LocalText first = worded(ways.front().phrase);
    const LocalText all =
        ways.size() == 1 ? first : worded(Phrase::bothWays, {first, worded(ways[1].phrase)});
    return worded(Phrase::barMoves, {all});
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
        FlightPlan plan = planAt(situation, chart);
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

  protected:
    [[nodiscard]] LocalText moved(const Situation&, double move) const override {
        return worded(Phrase::needleMoves,
                      {worded(move > 0 ? Phrase::toTheRight : Phrase::toTheLeft)});
    }
    [[nodiscard]] Phrase needleName() const override { return Phrase::theNeedle; }
};

} // namespace

std::unique_ptr<QuestionKind> makeHsiKind() {
    return std::make_unique<HsiKind>();
}

std::unique_ptr<QuestionKind> makeVorKind() {
    return std::make_unique<VorKind>();
}

} // namespace tarnel
