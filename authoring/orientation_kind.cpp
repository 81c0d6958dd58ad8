#include "authoring/question_kind.h"
#include "authoring/table_values.h"
#include "authoring/wording.h"

#include <algorithm>
#include <cmath>

namespace tarnel {

namespace {

using enum StudyColumn;

/// What the lists of this exercise offer.
constexpr int offered[] = {30,  45,  60,  90,  120, 135, 150, 180,
                           210, 225, 240, 270, 300, 315, 330, 360};

/// Three digits, with 360 for north.
std::string asOffered(double degrees) {
    const std::string digits = threeDigits(degrees);
    return digits == "000" ? "360" : digits;
}

LocalText answer(double degrees) {
    return same(asOffered(degrees));
}

/// `OrientationKind`: bearings read from the chart alone.
class OrientationKind : public QuestionKind {
  public:
    void read(PlanTable& table, const AuthoredChart& chart, Situation& situation) const override {
        readPlace(table, chart, isVorOrNdb, situation);
        situation.other = readStation(table, "other", chart, isVorOrNdb);
        situation.heading = readDirection(table, "heading");
        table.need("third");
        situation.asksHeading = readWord(table, "third", {"heading", "relative"}) == "heading";
    }
    [[nodiscard]] FlightPlan start(const Situation& situation,
                                   const AuthoredChart& chart) const override {
        FlightPlan plan = planAt(situation, chart);
        // No course that would tell a bearing is set before the question has been asked.
        plan.start.nav1 = plan.start.dme = std::int16_t{0};
        plan.start.nav2 = std::int16_t{1};
        plan.inst2 = {.type = displayOf("VOR"), .receiver = std::int16_t{2}};
        plan.inst3 = {.type = displayOf("HSI"), .receiver = std::int16_t{1}};
        plan.start.obs2 = plan.start.obs3 = std::int16_t{0};
        return plan;
    }
    void solve(Pilot& pilot, const Situation& situation) const override;
    [[nodiscard]] StudyRecord ask(const FlownSituation& flown, Language language) const override;
    void check(const FlownSituation& flown, SourceFindings& findings) const override;
};

/// How the third answer comes about.
LocalText lastWord(const Situation& situation, const Pilot& pilot, double radial) {
    const LocalText heading = direction(situation.heading);
    if (!situation.asksHeading)
        return worded(Phrase::relativeBearing, {same(pilot.name(situation.station)), answer(radial),
                                                heading, answer(radial + 180 - situation.heading)});
    if (situation.wind.speed == 0)
        return worded(Phrase::noseHeading, {answer(situation.heading)});
    return worded(Phrase::noseHeadingInWind,
                  {answer(situation.heading), direction(pilot.now().track)});
}

void OrientationKind::solve(Pilot& pilot, const Situation& situation) const {
    const auto seen = [&](Slot station) {
        return std::round(pilot.from(station).radial / 5) * 5; // as exactly as a chart is read
    };
    pilot.wait(FlownSituation::askedTick * simTimeStep);
    const double radial = seen(situation.station);
    const double qdm = seen(situation.other) + 180;
    const auto radialOf = [&](Slot vor) {
        return static_cast<std::int16_t>(wholeDegrees(pilot.from(vor).radial));
    };
    const auto tellRadial = [&] {
        pilot.set({.obs2 = radialOf(Slot::vor2), .obs3 = radialOf(Slot::vor1)});
        return worded(Phrase::lineFromStation,
                      {same(pilot.name(situation.station)), answer(radial),
                       worded(isNdb(situation.station) ? Phrase::theQdr : Phrase::theRadial)});
    };
    const auto tellQdm = [&] {
        return worded(Phrase::lineToStation, {same(pilot.name(situation.other)), answer(qdm)});
    };
    flyStraightOn(pilot, situation,
                  {tellRadial, tellQdm, [&] { return lastWord(situation, pilot, radial); }});
}

StudyRecord OrientationKind::ask(const FlownSituation& flown, Language language) const {
    const Situation& situation = flown.situation;
    const auto name = [&](Slot slot) { return same(flown.chart.identifier(slot)); };
    const double radial = flown.from(situation.station, flown.asked()).radial;
    const double qdm = flown.from(situation.other, flown.asked()).radial + 180;
    const auto nearest = [](double degrees) { return std::round(degrees / 15) * 15; };
    StudyRecord record;
    record[qa] = worded(isNdb(situation.station) ? Phrase::askQdr : Phrase::askRadial,
                        {name(situation.station)})
                     .in(language);
    record[qb] = worded(Phrase::askQdm, {name(situation.other)}).in(language);
    record[qc] = worded(situation.asksHeading ? Phrase::askHeading : Phrase::askRelative,
                        {name(situation.station)})
                     .in(language);
    record[ans1] = asOffered(nearest(radial));
    record[ans2] = asOffered(nearest(qdm));
    record[ans3] = asOffered(
        nearest(situation.asksHeading ? situation.heading : radial + 180 - situation.heading));
    return record;
}

void OrientationKind::check(const FlownSituation& flown, SourceFindings& findings) const {
    const Situation& situation = flown.situation;
    const double radial = flown.from(situation.station, flown.asked()).radial;
    const double qdm = flown.from(situation.other, flown.asked()).radial + 180;
    const double third =
        situation.asksHeading ? situation.heading : radial + 180 - situation.heading;
    for (const double direction : {radial, qdm, third}) {
        const auto near = [&](int offer) { return std::abs(turnBetween(direction, offer)) <= 2.5; };
        if (std::none_of(std::begin(offered), std::end(offered), near))
            findings.push_back({situation.line, "the answer " + threeDigits(direction) +
                                                    " is not among the sixteen that are offered"});
    }
}

} // namespace

std::unique_ptr<QuestionKind> makeOrientationKind() {
    return std::make_unique<OrientationKind>();
}

} // namespace tarnel
