#include "authoring/manoeuvres.h"
#include "authoring/question_kind.h"
#include "authoring/wording.h"

#include <algorithm>
#include <cmath>

namespace tarnel {

namespace {

using enum StudyColumn;

/// On the present heading, before the first turn, seconds.
constexpr double lookFirst = 15;
constexpr double tracked = 35; ///< seconds along the bearing in the end

struct Words {
    const char* grows;
    const char* shrinks;
    const char* stays;
};
constexpr Words wordsOf(Language language) {
    return language == Language::german ? Words{"grösser", "kleiner", "gleich"}
                                        : Words{"increase", "decrease", "remain constant"};
}

/// `InterceptKind`: from the actual bearing onto a required one, towards a station or from it.
///
/// The first heading is beyond the actual bearing, seen from the required one, on the way in: QDM,
/// so many degrees. On the way out it is beyond the required one: QDR, seen from the actual.
class InterceptKind : public QuestionKind {
  public:
    explicit InterceptKind(bool towards) : inbound(towards) {}

    void read(PlanTable& table, const AuthoredChart& chart, Situation& situation) const override {
        constexpr Range<double> cuts{15, 90};
        readPlace(table, chart, isVorOrNdb, situation);
        situation.heading = readDirection(table, "heading");
        situation.required = readDirection(table, "required");
        situation.cut = table.number("cut", cuts).value_or(inbound ? 30 : 45);
    }
    [[nodiscard]] FlightPlan start(const Situation& situation,
                                   const AuthoredChart& chart) const override;
    void solve(Pilot& pilot, const Situation& situation) const override;
    [[nodiscard]] StudyRecord ask(const FlownSituation& flown, Language language) const override;
    void check(const FlownSituation& flown, SourceFindings& findings) const override;

  private:
    /// The bearing that is asked for, at a moment.
    [[nodiscard]] double actual(const FlownSituation& flown, const FlightRow& row) const {
        return circle(flown.from(flown.situation.station, row).radial + (inbound ? 180 : 0));
    }
    [[nodiscard]] double firstHeading(double actualBearing, const Situation& situation) const {
        const double toActual = turnBetween(situation.required, actualBearing);
        if (toActual == 0)
            return situation.required;
        return circle(inbound ? actualBearing + std::copysign(situation.cut, toActual)
                              : situation.required - std::copysign(situation.cut, toActual));
    }
    [[nodiscard]] double angle(const FlownSituation& flown, const FlightRow& row) const {
        return std::abs(turnBetween(actual(flown, row), flown.situation.required));
    }
    [[nodiscard]] double growth(const FlownSituation& flown) const {
        const auto held = static_cast<std::size_t>(lookFirst / simTimeStep);
        return angle(flown, flown.rows.at(held)) - angle(flown, flown.asked());
    }

    /// Where the needle will be when the required bearing is reached.
    void tellNeedle(Pilot& pilot, const Situation& situation, double heading) const;

    bool inbound;
};

FlightPlan InterceptKind::start(const Situation& situation, const AuthoredChart& chart) const {
    FlightPlan plan = planAt(situation, chart);
    const bool beacon = isNdb(situation.station);
    plan.start.nav1 = beacon ? std::int16_t{0} : static_cast<std::int16_t>(situation.station);
    tuneAdf(plan, situation.station);
    plan.inst2 = {.type = displayOf("ADF"), .adfCard = std::int16_t{2}};
    plan.inst3 = {.type = displayOf("RMI"), .receiver = std::int16_t{1}};
    return plan;
}

void InterceptKind::solve(Pilot& pilot, const Situation& situation) const {
    const CourseLine line{situation.station, situation.required};
    const double bearing = circle(pilot.from(situation.station).radial + (inbound ? 180 : 0));
    const double rounded = std::round(bearing / 5) * 5;
    const LocalText wanted = same(threeDigits(situation.required));
    const LocalText word = same(inbound ? "QDM" : "QDR");
    const double heading = firstHeading(rounded, situation);
    const double base = inbound ? rounded : situation.required;
    const LocalText sign = same(turnBetween(base, heading) < 0 ? "-" : "+");
    pilot.wait(lookFirst);
    if (turnBetween(rounded, situation.required) != 0) {
        pilot.say(worded(inbound ? Phrase::interceptIn : Phrase::interceptOut,
                         {word, same(threeDigits(rounded)), wanted, number(situation.cut),
                          same(threeDigits(heading)), sign}));
        pilot.turnTo(heading);
        tellNeedle(pilot, situation, heading);
        pilot.establishFrom(line, [&](double lead) {
            pilot.say(std::lround(lead) == 0
                          ? worded(Phrase::interceptLeadSmall, {word, wanted})
                          : worded(Phrase::interceptLead, {word, wanted, number(lead)}));
        });
    } else {
        pilot.turnTo(pilot.headingOn(situation.required));
    }
    const double end = pilot.seconds() + tracked;
    pilot.say(establishedTold(pilot, word, situation.required, Phrase::thePointer));
    pilot.track(line, [&] { return pilot.seconds() >= end; });
}

void InterceptKind::tellNeedle(Pilot& pilot, const Situation& situation, double heading) const {
    constexpr double soon = 5;    // degrees to go, with no time for words
    constexpr double toRead = 10; // seconds for what was told before
    const CourseLine line{situation.station, situation.required};
    if (std::abs(std::remainder(pilot.from(line.station).radial - line.course, 180)) < soon)
        return;
    pilot.wait(std::max(0.0, lookFirst + toRead - pilot.seconds()));
    const double angle = turnBetween(heading, situation.required);
    pilot.say(worded(Phrase::interceptNeedle,
                     {same(inbound ? "QDM" : "QDR"), direction(situation.required),
                      worded(inbound ? Phrase::thePointer : Phrase::thePointersTail),
                      number(std::abs(angle)), worded(angle < 0 ? Phrase::left : Phrase::right)}));
}

StudyRecord InterceptKind::ask(const FlownSituation& flown, Language language) const {
    const Situation& situation = flown.situation;
    const Words words = wordsOf(language);
    const double bearing = wholeDegrees(actual(flown, flown.asked()));
    const double heading = firstHeading(bearing, situation);
    const double turn = turnBetween(situation.heading, heading);
    const double grown = growth(flown);
    const LocalText station = same((isNdb(situation.station) ? "NDB " : "VOR ") +
                                   flown.chart.identifier(situation.station));
    StudyRecord record;
    record[qa] = threeDigits(situation.required) + " " + station.in(language);
    record[ans5] = threeDigits(situation.heading);
    record[ans6] = threeDigits(heading);
    record[ans7] = station.in(language);
    record[ans1] = threeDigits(bearing);
    record[ans2] = std::abs(grown) < steadyNeedle ? words.stays
                   : grown > 0                    ? words.grows
                                                  : words.shrinks;
    record[ans3] = turn == 0 ? "maintain" : turn > 0 ? "right" : "left";
    const double limit = inbound ? bearing : situation.required;
    record[ans4] = heading == limit ? "maintain" : heading > limit ? words.grows : words.shrinks;
    return record;
}

void InterceptKind::check(const FlownSituation& flown, SourceFindings& findings) const {
    const Situation& situation = flown.situation;
    const auto wrong = [&](const char* text) { findings.push_back({situation.line, text}); };
    const double bearing = wholeDegrees(actual(flown, flown.asked()));
    const double limit = inbound ? bearing : situation.required;
    const double heading = firstHeading(bearing, situation);
    if (inbound && heading == limit)
        wrong("the required QDM is flown already, and there is no answer for that");
    if (std::abs(heading - limit) >= 180)
        wrong("the first heading lies across north, so larger and smaller can't be told");
    const double grown = std::abs(growth(flown));
    constexpr double seenAngle = 1.5;
    if (grown > steadyNeedle / 2 && grown < seenAngle)
        wrong("the angle changes too little to be seen and too much to stay");
    if (std::abs(turnBetween(actual(flown, flown.rows.back()), situation.required)) > 2)
        wrong("the solution does not end on the required bearing");
}

} // namespace

std::unique_ptr<QuestionKind> makeQdmKind() {
    return std::make_unique<InterceptKind>(true);
}

std::unique_ptr<QuestionKind> makeQdrKind() {
    return std::make_unique<InterceptKind>(false);
}

} // namespace tarnel
