#include "authoring/question_kind.h"

#include "authoring/table_values.h"
#include "authoring/wording.h"

#include <cmath>

namespace tarnel {

namespace {

constexpr CourseKind kinds[] = {
    {ExerciseType::hsiPosition, "hsi", makeHsiKind},
    {ExerciseType::standardVorPosition, "stdvor", makeVorKind},
    {ExerciseType::hsiHolding, "hsihld", makeHsiHoldingKind},
    {ExerciseType::dgHolding, "dghld", makeDgHoldingKind},
    {ExerciseType::adfPosition, "adfpos", makeAdfKind},
    {ExerciseType::qdm, "qdm", makeQdmKind},
    {ExerciseType::qdr, "qdr", makeQdrKind},
    {ExerciseType::wind, "wind", makeWindKind},
    {ExerciseType::dmeArc, "dmearc", makeArcKind},
    {ExerciseType::orientation, "orientation", makeOrientationKind},
};

} // namespace

std::span<const CourseKind> courseKinds() {
    return kinds;
}

const CourseKind* courseKind(std::string_view word) {
    for (const CourseKind& kind : kinds)
        if (kind.word == word)
            return &kind;
    return nullptr;
}

Slot readStation(PlanTable& table, std::string_view key, const AuthoredChart& chart,
                 bool (*fits)(Slot)) {
    std::string names;
    for (const std::string& name : chart.namesOf(fits))
        names += (names.empty() ? "" : ", ") + name;
    table.need(key);
    const auto name = table.text(
        key, [&](const std::string& text) { return chart.slotOf(text, fits).has_value(); },
        "one of " + names);
    return *chart.slotOf(*name, fits);
}

void readPlace(PlanTable& table, const AuthoredChart& chart, bool (*fits)(Slot),
               Situation& situation) {
    situation.station = readStation(table, "station", chart, fits);
    situation.at = {readDirection(table, "radial"), readDistance(table, "distance")};
}

bool isVor(Slot slot) {
    return slot == Slot::vor1 || slot == Slot::vor2;
}

bool isNdb(Slot slot) {
    return slot == Slot::ndb1 || slot == Slot::ndb2;
}

bool isVorOrNdb(Slot slot) {
    return slot != Slot::localizer;
}

double readDirection(PlanTable& table, std::string_view key) {
    table.need(key);
    return *table.whole(key, plan_limits::direction) % 360;
}

double readDistance(PlanTable& table, std::string_view key) {
    constexpr Range<double> miles{0.5, 60};
    table.need(key);
    return *table.number(key, miles);
}

Turn readTurns(PlanTable& table) {
    table.need("turns");
    return readWord(table, "turns", {"left", "right"}) == "left" ? Turn::left : Turn::right;
}

LocalText direction(double degrees) {
    return same(threeDigits(degrees));
}

void flyStraightOn(Pilot& pilot, const Situation& situation,
                   const std::vector<std::function<LocalText()>>& words) {
    constexpr double firstWord = 12; // seconds, so that nothing is told beside a question
    constexpr double lastWord = 10;  // before the end
    const double apart =
        (situation.flown - firstWord - lastWord) / static_cast<double>(words.size() - 1);
    double next = firstWord;
    for (const auto& word : words) {
        pilot.wait(next - pilot.seconds());
        pilot.say(word());
        next += apart;
    }
    pilot.wait(situation.flown - pilot.seconds());
}

LocalText establishedTold(const Pilot& pilot, const LocalText& what, double course, Phrase needle) {
    const double heading = pilot.headingOn(course);
    const double into = turnBetween(course, heading);
    if (into == 0)
        return worded(Phrase::established, {what, direction(course), worded(needle)});
    return worded(Phrase::establishedInWind,
                  {what, direction(course), number(std::abs(into)),
                   worded(into > 0 ? Phrase::right : Phrase::left), direction(heading)});
}

FlightPlan planFrom(const GeoPosition& place, const Situation& situation,
                    const AuthoredChart& chart) {
    FlightPlan plan;
    plan.chart = chart.path;
    plan.seconds = plan_limits::seconds.highest;
    plan.position = secondBefore(place, situation);
    plan.start.heading = static_cast<std::int16_t>(situation.heading);
    plan.start.tas = situation.tas;
    if (situation.wind.speed > 0)
        plan.start.wind = situation.wind;
    return plan;
}

FlightPlan planAt(const Situation& situation, const AuthoredChart& chart) {
    return planFrom(placeOn(chart.position(situation.station), situation.at), situation, chart);
}

void showRmiAndHsi(FlightPlan& plan, const Situation& situation, double course) {
    plan.start.nav1 = plan.start.dme = static_cast<std::int16_t>(situation.station);
    plan.inst2 = {.type = displayOf("RMI"), .receiver = std::int16_t{1}};
    plan.inst3 = {.type = displayOf("HSI"), .receiver = std::int16_t{1}};
    plan.start.obs3 = static_cast<std::int16_t>(course);
}

void tuneAdf(FlightPlan& plan, Slot beacon) {
    plan.start.adf = static_cast<std::int16_t>(beacon == Slot::ndb2 ? 1 : 0);
}

} // namespace tarnel
