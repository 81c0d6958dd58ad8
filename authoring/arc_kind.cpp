#include "authoring/manoeuvres.h"
#include "authoring/question_kind.h"
#include "authoring/table_values.h"
#include "authoring/wording.h"

#include <cmath>

namespace tarnel {

namespace {

using enum StudyColumn;

constexpr double tracked = 30; ///< seconds along the final course

Arc arcOf(const Situation& situation) {
    return {.station = situation.station,
            .distance = situation.arc,
            .clockwise = situation.clockwise,
            .final = situation.final};
}

/// `ArcKind`: onto an arc from a radial, and from the arc onto the final course.
class ArcKind : public QuestionKind {
  public:
    void read(PlanTable& table, const AuthoredChart& chart, Situation& situation) const override;
    [[nodiscard]] FlightPlan start(const Situation& situation,
                                   const AuthoredChart& chart) const override;
    void solve(Pilot& pilot, const Situation& situation) const override;
    [[nodiscard]] StudyRecord ask(const FlownSituation& flown, Language language) const override;
    void check(const FlownSituation& flown, SourceFindings& findings) const override;

  private:
    /// The headings of the first turn's beginning and end.
    struct Joining {
        double before = 0;
        double after = 0;
    };
    [[nodiscard]] static Joining joining(const FlownSituation& flown);
    [[nodiscard]] static double leadRadial(const FlownSituation& flown);
};

void ArcKind::read(PlanTable& table, const AuthoredChart& chart, Situation& situation) const {
    readPlace(table, chart, isVor, situation);
    situation.arc = readDistance(table, "arc");
    situation.final = readDirection(table, "final");
    situation.clockwise = readSense(table);
    // Outbound inside the arc, inbound outside it.
    const bool outbound = situation.at.distance < situation.arc;
    situation.heading = circle(situation.at.radial + (outbound ? 0 : 180));
}

FlightPlan ArcKind::start(const Situation& situation, const AuthoredChart& chart) const {
    const WindTriangle wind = windTriangle(situation.wind, situation.heading, situation.tas);
    Situation established = situation;
    established.heading = wholeDegrees(situation.heading + wind.correction);
    FlightPlan plan = planAt(established, chart);
    showRmiAndHsi(plan, situation, situation.final);
    return plan;
}

void ArcKind::solve(Pilot& pilot, const Situation& situation) const {
    pilot.wait(15);
    fly(pilot, arcOf(situation));
    pilot.say(establishedTold(pilot, worded(Phrase::finalCourse), situation.final, Phrase::theBar));
    const double end = pilot.seconds() + tracked;
    pilot.track({situation.station, situation.final}, [&] { return pilot.seconds() >= end; });
}

ArcKind::Joining ArcKind::joining(const FlownSituation& flown) {
    std::size_t tick = FlownSituation::askedTick;
    while (flown.rows.at(tick).turnRate == 0)
        ++tick;
    const double before = flown.rows[tick - 1].heading;
    while (flown.rows.at(tick).turnRate != 0)
        ++tick;
    return {before, flown.rows[tick].heading};
}

/// Where the last turn but the corrections on the final course begins.
double ArcKind::leadRadial(const FlownSituation& flown) {
    const double final = flown.situation.final;
    std::size_t tick = flown.rows.size() - 1;
    const auto away = [&](std::size_t at) {
        return std::abs(turnBetween(flown.rows[at].heading, final)) > 30;
    };
    while (!away(tick))
        --tick;
    while (flown.rows[tick].turnRate != 0)
        --tick;
    return flown.from(flown.situation.station, flown.rows[tick]).radial;
}

StudyRecord ArcKind::ask(const FlownSituation& flown, Language language) const {
    const Situation& situation = flown.situation;
    const Joining turn = joining(flown);
    const double degrees = turnBetween(turn.before, turn.after);
    StudyRecord record;
    const bool outbound = situation.at.distance < situation.arc;
    record[qc] =
        worded(Phrase::arcTask,
               {same(flown.chart.identifier(situation.station)),
                same(threeDigits(situation.at.radial)), same(outbound ? "outbound" : "inbound"),
                situation.arc == std::floor(situation.arc) ? number(situation.arc)
                                                           : tenths(situation.arc),
                worded(situation.clockwise ? Phrase::clockwise : Phrase::counterclockwise),
                same(threeDigits(situation.final))})
            .in(language);
    record[ans1] = degrees > 0 ? "right" : "left";
    record[ans2] = threeDigits(turn.after);
    record[ans3] = threeDigits(leadRadial(flown));
    return record;
}

void ArcKind::check(const FlownSituation& flown, SourceFindings& findings) const {
    const Situation& situation = flown.situation;
    const double around = std::abs(turnBetween(situation.at.radial, situation.final + 180));
    if (around < 20)
        findings.push_back({situation.line, "the arc is too short to be flown"});
}

} // namespace

std::unique_ptr<QuestionKind> makeArcKind() {
    return std::make_unique<ArcKind>();
}

} // namespace tarnel
