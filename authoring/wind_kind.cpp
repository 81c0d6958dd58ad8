#include "authoring/manoeuvres.h"
#include "authoring/question_kind.h"
#include "authoring/wording.h"
#include "exercises/heading_offers.h"

#include <cmath>

namespace tarnel {

namespace {

using enum StudyColumn;

constexpr double zero = 0.05; ///< knots or degrees that are nothing when written in tenths

/// A positive number with one decimal and a point, "0" for nothing.
std::string written(double value) {
    return std::abs(value) < zero ? "0" : tenths(std::abs(value)).english;
}

Holding holdingOf(const Situation& situation, double outbound) {
    return {.fix = situation.station,
            .inbound = situation.inbound,
            .turns = situation.turns,
            .established = true,
            .firstOutbound = outbound};
}

WindTriangle inboundTriangle(const Situation& situation) {
    return windTriangle(situation.wind, situation.inbound, situation.tas);
}

/// `WindKind`: the components of the wind, the correction and the outbound time of a holding.
class WindKind : public QuestionKind {
  public:
    void read(PlanTable& table, const AuthoredChart& chart, Situation& situation) const override {
        situation.station = readStation(table, "station", chart, isVor);
        situation.inbound = readDirection(table, "inbound");
        situation.turns = readTurns(table);
    }
    [[nodiscard]] FlightPlan start(const Situation& situation,
                                   const AuthoredChart& chart) const override;
    void solve(Pilot& pilot, const Situation& situation) const override {
        fly(pilot, holdingOf(situation, outboundSeconds(inboundTriangle(situation))));
    }
    [[nodiscard]] StudyRecord ask(const FlownSituation& flown, Language language) const override;
    void check(const FlownSituation& flown, SourceFindings& findings) const override;
};

FlightPlan WindKind::start(const Situation& situation, const AuthoredChart& chart) const {
    const WindTriangle wind = inboundTriangle(situation);
    Situation established = situation;
    established.heading = wholeDegrees(situation.inbound + wind.correction);
    FlightPlan plan = planFrom(placeOn(chart.position(situation.station),
                                       {circle(situation.inbound + 180), wind.groundSpeed / 60}),
                               established, chart);
    showRmiAndHsi(plan, situation, situation.inbound);
    return plan;
}

StudyRecord WindKind::ask(const FlownSituation& flown, Language language) const {
    const Situation& situation = flown.situation;
    const WindTriangle wind = inboundTriangle(situation);
    const auto side = [&](double fromRight) {
        return std::abs(fromRight) < zero
                   ? std::string("-")
                   : worded(fromRight > 0 ? Phrase::right : Phrase::left).in(language);
    };
    const int seconds = static_cast<int>(outboundSeconds(wind));
    StudyRecord record;
    record[qa] = headingCaption(situation.wind.direction);
    record[qb] = std::to_string(situation.wind.speed);
    record[ans3] = written(wind.fromRight);
    record[ans4] = side(wind.fromRight);
    record[ans5] = written(wind.correction);
    record[ans6] = side(wind.correction);
    record[ans2] = std::abs(wind.head) < zero ? "-" : wind.head > 0 ? "Head" : "Tail";
    record[ans1] = written(wind.head);
    record[ans7] = std::to_string(seconds / 60) + "." + (seconds % 60 < 10 ? "0" : "") +
                   std::to_string(seconds % 60);
    record[qc] = worded(Phrase::windInbound,
                        {same(threeDigits(situation.inbound)),
                         worded(situation.turns == Turn::right ? Phrase::right : Phrase::left)})
                     .in(language);
    record[qd] = "TAS " + std::to_string(situation.tas);
    return record;
}

void WindKind::check(const FlownSituation& flown, SourceFindings& findings) const {
    const Situation& situation = flown.situation;
    const double correction = std::abs(inboundTriangle(situation).correction);
    if (!(correction * 3 < 75))
        findings.push_back({situation.line, "three times the correction is no outbound heading; "
                                            "choose less wind across"});
}

} // namespace

std::unique_ptr<QuestionKind> makeWindKind() {
    return std::make_unique<WindKind>();
}

} // namespace tarnel
