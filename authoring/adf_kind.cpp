#include "authoring/question_kind.h"
#include "authoring/wording.h"
#include "strings/string_table.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tarnel {

namespace {

using enum StudyColumn;

using Offers = std::array<StudyColumn, 4>;

/// Four directions: the right one, what comes of the usual mistakes with it, and others if two of
/// these are the same. Where the right one stands is told by its own figures.
void offer(StudyRecord& record, const Offers& columns, double right,
           std::initializer_list<double> mistakes) {
    std::vector<std::string> offers = {threeDigits(right)};
    const auto add = [&](double degrees) {
        const std::string text = threeDigits(std::round(degrees / 5) * 5);
        if (offers.size() < columns.size() &&
            std::find(offers.begin(), offers.end(), text) == offers.end())
            offers.push_back(text);
    };
    for (const double mistake : mistakes)
        add(mistake);
    for (double step = 30; offers.size() < columns.size(); step += 30)
        add(right + step);
    std::rotate(offers.begin(), offers.begin() + wholeDegrees(right) / 5 % 4, offers.end());
    for (std::size_t i = 0; i < columns.size(); ++i)
        record[columns[i]] = offers[i];
}

/// `AdfKind`: QDR, QDM and relative bearing of a beacon, and how they go.
class AdfKind : public QuestionKind {
  public:
    void read(PlanTable& table, const AuthoredChart& chart, Situation& situation) const override {
        readPlace(table, chart, isNdb, situation);
        situation.heading = readDirection(table, "heading");
    }
    [[nodiscard]] FlightPlan start(const Situation& situation,
                                   const AuthoredChart& chart) const override {
        FlightPlan plan = planAt(situation, chart);
        plan.start.nav1 = std::int16_t{0};
        tuneAdf(plan, situation.station);
        plan.inst2 = {.type = displayOf("ADF"), .adfCard = std::int16_t{2}};
        plan.inst3 = {.type = displayOf("VOR"), .receiver = std::int16_t{1}};
        plan.start.obs3 = std::int16_t{0};
        return plan;
    }
    void solve(Pilot& pilot, const Situation& situation) const override;
    [[nodiscard]] StudyRecord ask(const FlownSituation& flown, Language language) const override;
    void check(const FlownSituation& flown, SourceFindings& findings) const override;

  private:
    [[nodiscard]] static double radial(const FlownSituation& flown, const FlightRow& row) {
        return flown.from(flown.situation.station, row).radial;
    }
    [[nodiscard]] static double change(const FlownSituation& flown) {
        return turnBetween(radial(flown, flown.asked()), radial(flown, flown.rows.back()));
    }
};

/// How the QDM at the start follows from heading and needle.
LocalText reading(double heading, double qdm) {
    const int shown = wholeDegrees(qdm);
    return worded(Phrase::readBearing,
                  {direction(heading), direction(shown - heading), direction(shown)});
}

/// How the bearing has gone since the start, and why.
LocalText movement(double heading, double before, double after) {
    const double change = turnBetween(before, after);
    const bool ahead = std::abs(turnBetween(heading, before)) < 90;
    if (std::abs(change) < steadyNeedle)
        return worded(
            Phrase::bearingStands,
            {direction(before), worded(ahead ? Phrase::towardsStation : Phrase::awayFromStation)});
    return worded(Phrase::bearingMoves, {direction(before), direction(after),
                                         worded(change > 0 ? Phrase::right : Phrase::left),
                                         worded(change > 0 ? Phrase::larger : Phrase::smaller)});
}

void AdfKind::solve(Pilot& pilot, const Situation& situation) const {
    const auto qdm = [&] { return circle(pilot.from(situation.station).radial + 180); };
    pilot.wait(FlownSituation::askedTick * simTimeStep);
    const double asked = qdm();
    flyStraightOn(pilot, situation,
                  {[&] { return reading(situation.heading, asked); },
                   [&] {
                       return worded(Phrase::qdrOfQdm, {direction(asked), direction(asked + 180)});
                   },
                   [&] { return movement(situation.heading, asked, qdm()); }});
}

StudyRecord AdfKind::ask(const FlownSituation& flown, Language language) const {
    const double qdr = radial(flown, flown.asked());
    const double qdm = circle(qdr + 180);
    const double heading = flown.situation.heading;
    const double relative = circle(qdm - heading);
    const double moved = change(flown);
    const StringTable& texts = language == Language::german ? germanTable() : englishTable();
    StudyRecord record;
    record[ans1] = threeDigits(qdr);
    record[ans3] = threeDigits(qdm);
    record[ans5] = threeDigits(relative);
    record[ans2] = record[ans4] = texts[std::abs(moved) < steadyNeedle ? Text::trendSame
                                        : moved > 0                    ? Text::trendLarger
                                                                       : Text::trendSmaller];
    offer(record, {qa, qb, qc, qd}, qdr, {qdm, relative, heading});
    offer(record, {qe, qf, qg, qh}, qdm, {qdr, relative, heading + 360 - relative});
    offer(record, {qi, qj, qk, ql}, relative, {relative + 180, qdm, 360 - relative});
    return record;
}

void AdfKind::check(const FlownSituation& flown, SourceFindings& findings) const {
    const double first = radial(flown, flown.asked());
    const double last = radial(flown, flown.rows.back());
    const double moved = change(flown);
    if (std::abs(moved) > steadyNeedle && std::abs(moved) < seenNeedle)
        findings.push_back({flown.situation.line, "the bearing changes too little to be seen and "
                                                  "too much to stand still"});
    for (const double turned : {0.0, 180.0})
        if (std::abs(moved) > steadyNeedle &&
            (circle(last + turned) > circle(first + turned)) != (moved > 0))
            findings.push_back({flown.situation.line, "a bearing passes north, so it gets larger "
                                                      "and smaller at once"});
}

} // namespace

std::unique_ptr<QuestionKind> makeAdfKind() {
    return std::make_unique<AdfKind>();
}

} // namespace tarnel
