#include "authoring/manoeuvres.h"
#include "authoring/question_kind.h"
#include "authoring/wording.h"

#include <cmath>
#include <numbers>

namespace tarnel {

namespace {

using enum StudyColumn;

Holding holdingOf(const Situation& situation) {
    return {.fix = situation.station, .inbound = situation.inbound, .turns = situation.turns};
}

/// `HoldingKind`: how a holding is joined from the present heading.
class HoldingKind : public QuestionKind {
  public:
    explicit HoldingKind(bool withBeacon) : beacon(withBeacon) {}

    void read(PlanTable& table, const AuthoredChart& chart, Situation& situation) const override {
        situation.station = readStation(table, "station", chart, beacon ? isNdb : isVor);
        situation.heading = readDirection(table, "heading");
        situation.inbound = readDirection(table, "inbound");
        situation.at.distance = readDistance(table, "distance");
        situation.turns = readTurns(table);
    }
    [[nodiscard]] FlightPlan start(const Situation& situation,
                                   const AuthoredChart& chart) const override;
    void solve(Pilot& pilot, const Situation& situation) const override {
        fly(pilot, holdingOf(situation));
    }
    [[nodiscard]] StudyRecord ask(const FlownSituation& flown, Language language) const override;
    void check(const FlownSituation& flown, SourceFindings& findings) const override;

  private:
    bool beacon;
};

FlightPlan HoldingKind::start(const Situation& situation, const AuthoredChart& chart) const {
    // The present heading leads over the fix, so the place is on the track's other side.
    const WindTriangle drift = windTriangle({situation.wind.direction, situation.wind.speed},
                                            situation.heading, situation.tas);
    const double track =
        situation.heading -
        std::atan2(drift.fromRight, situation.tas - drift.head) / std::numbers::pi * 180;
    FlightPlan plan = planFrom(
        placeOn(chart.position(situation.station), {circle(track + 180), situation.at.distance}),
        situation, chart);
    if (beacon) {
        tuneAdf(plan, situation.station);
        plan.inst2 = {.type = displayOf("ADF"), .adfCard = std::int16_t{1}};
        plan.inst3 = {.type = displayOf("DG")};
        plan.start.obs2 = std::int16_t{0};
        return plan;
    }
    showRmiAndHsi(plan, situation, situation.inbound);
    return plan;
}

StudyRecord HoldingKind::ask(const FlownSituation& flown, Language language) const {
    const Situation& situation = flown.situation;
    StudyRecord record;
    record[qc] = worded(Phrase::holdNote, {same(flown.chart.identifier(situation.station)),
                                           same(threeDigits(situation.heading))})
                     .in(language);
    record[ans1] = threeDigits(situation.heading);
    record[ans2] = threeDigits(situation.inbound);
    record[ans3] = situation.turns == Turn::right ? "Standard" : "Non Standard";
    return record;
}

void HoldingKind::check(const FlownSituation& flown, SourceFindings& findings) const {
    const Situation& situation = flown.situation;
    const HoldingAnswer answer = answerOf(holdingOf(situation), situation.heading);
    const double shorter = turnBetween(situation.heading, answer.firstHeading);
    if (answer.entry == "offset" && (shorter < 0) != (answer.firstTurn == "left") &&
        answer.firstTurn != "maintain")
        findings.push_back(
            {situation.line, "the exercise calls the first turn " + answer.firstTurn +
                                 ", the long way over north; choose other directions"});
}

} // namespace

std::unique_ptr<QuestionKind> makeHsiHoldingKind() {
    return std::make_unique<HoldingKind>(false);
}

std::unique_ptr<QuestionKind> makeDgHoldingKind() {
    return std::make_unique<HoldingKind>(true);
}

} // namespace tarnel
