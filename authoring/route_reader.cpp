#include "authoring/question_kind.h"
#include "authoring/route.h"
#include "authoring/table_values.h"
#include "flights/plan_bounds.h"
#include "flights/plan_error.h"
#include "flights/plan_reader.h"

#include <functional>

namespace tarnel {

namespace {

/// Reads legs of a route over a chart.
class LegReader {
  public:
    explicit LegReader(const AuthoredChart& over) : chart(over) {}

    [[nodiscard]] RouteLeg read(PlanTable table) const;
    /// The radios, courses, speed and wind that a table sets.
    [[nodiscard]] FlightSettings settings(PlanTable& table) const;

  private:
    [[nodiscard]] Manoeuvre manoeuvre(PlanTable& table) const;
    [[nodiscard]] Slot anyStation(PlanTable& table) const {
        return readStation(table, "station", chart, [](Slot) { return true; });
    }
    [[nodiscard]] CourseLine line(PlanTable& table) const {
        return {anyStation(table), readDirection(table, "course")};
    }
    [[nodiscard]] std::optional<std::int16_t> tuned(PlanTable& table, std::string_view key,
                                                    bool (*fits)(Slot)) const;
    [[nodiscard]] Manoeuvre turn(PlanTable& table) const;
    [[nodiscard]] Manoeuvre track(PlanTable& table) const;
    [[nodiscard]] Manoeuvre intercept(PlanTable& table) const;
    [[nodiscard]] Manoeuvre hold(PlanTable& table) const;
    [[nodiscard]] Manoeuvre arc(PlanTable& table) const;

    const AuthoredChart& chart;
};

constexpr Range<double> legSeconds{1, 1800};

std::optional<std::int16_t> LegReader::tuned(PlanTable& table, std::string_view key,
                                             bool (*fits)(Slot)) const {
    if (table.lineOf(key) == 0) {
        table.know(key);
        return std::nullopt;
    }
    const Slot slot = readStation(table, key, chart, fits);
    if (slot == Slot::localizer)
        return std::int16_t{2};
    return static_cast<std::int16_t>(slot == Slot::vor2 || slot == Slot::ndb2 ? 1 : 0);
}

FlightSettings LegReader::settings(PlanTable& table) const {
    const auto isNav = [](Slot slot) { return !isNdb(slot); };
    FlightSettings settings;
    settings.tas = table.whole("tas", plan_limits::airSpeed);
    settings.nav1 = tuned(table, "nav1", isNav);
    settings.nav2 = tuned(table, "nav2", isNav);
    settings.adf = tuned(table, "adf", isNdb);
    settings.dme = tuned(table, "dme", isNav);
    settings.obs2 = table.whole("obs_left", plan_limits::direction);
    settings.obs3 = table.whole("obs_right", plan_limits::direction);
    settings.wind = readWind(table);
    return settings;
}

Manoeuvre LegReader::turn(PlanTable& table) const {
    const double heading = readDirection(table, "heading");
    const auto word = readWord(table, "turn", {"left", "right"});
    return TurnTo{heading, !word ? Turn::shorter : *word == "left" ? Turn::left : Turn::right};
}

Manoeuvre LegReader::track(PlanTable& table) const {
    TrackAlong leg{line(table)};
    leg.seconds = table.number("seconds", legSeconds);
    leg.distance = table.number("distance", {0.5, 60});
    if (leg.seconds && leg.distance)
        table.refuse("either 'seconds' or 'distance'");
    return leg;
}

Manoeuvre LegReader::intercept(PlanTable& table) const {
    Intercept leg{line(table)};
    const auto angle = table.number("angle", {15, 90});
    leg.angle = angle.value_or(leg.angle);
    leg.beyond = table.number("beyond", {15, 90});
    if (angle && leg.beyond)
        table.refuse("either 'angle' or 'beyond'");
    return leg;
}

Manoeuvre LegReader::hold(PlanTable& table) const {
    Holding leg{.fix = readStation(table, "station", chart, isVorOrNdb),
                .inbound = readDirection(table, "inbound"),
                .turns = readTurns(table)};
    leg.minutes = table.number("minutes", {0.5, 3}).value_or(leg.minutes);
    leg.patterns = table.whole("patterns", {0, 5}).value_or(2);
    return leg;
}

Manoeuvre LegReader::arc(PlanTable& table) const {
    Arc leg{.station = readStation(table, "station", chart, [](Slot slot) { return !isNdb(slot); }),
            .distance = readDistance(table, "distance"),
            .clockwise = readSense(table),
            .final = readDirection(table, "final")};
    leg.inbound =
        readWord(table, "leave", {"inbound", "outbound"}).value_or("inbound") == "inbound";
    return leg;
}

Manoeuvre LegReader::manoeuvre(PlanTable& table) const {
    table.need("fly");
    const std::string word = readWord(table, "fly",
                                      {"straight", "turn", "over", "home", "radial", "track",
                                       "intercept", "hold", "arc"})
                                 .value();
    if (word == "straight") {
        table.need("seconds");
        return Straight{*table.number("seconds", legSeconds)};
    }
    if (word == "turn")
        return turn(table);
    if (word == "over")
        return FlyOver{anyStation(table)};
    if (word == "home")
        return HomeTo{anyStation(table), table.number("distance", {0.5, 60})};
    if (word == "radial")
        return ToRadial{anyStation(table), readDirection(table, "radial")};
    if (word == "track")
        return track(table);
    if (word == "intercept")
        return intercept(table);
    return word == "hold" ? hold(table) : arc(table);
}

RouteLeg LegReader::read(PlanTable table) const {
    RouteLeg leg;
    leg.line = table.line();
    leg.comment = readBothLanguages(table);
    leg.settings = settings(table);
    leg.restartsStopwatch = table.truth("stopwatch").value_or(false);
    leg.manoeuvre = manoeuvre(table);
    if (std::holds_alternative<Intercept>(leg.manoeuvre))
        leg.turnComment = readBothLanguages(table, "de_turn", "en_turn");
    table.refuseOtherKeys();
    return leg;
}

InstrumentPlan readInstrument(PlanTable table) {
    InstrumentPlan plan;
    const auto type = readWord(table, "type", {"ADF", "RMI", "VOR", "HSI", "DG"});
    if (type)
        plan.type = displayOf(*type);
    plan.receiver = table.whole("nav", plan_limits::receiver);
    plan.adfCard = table.whole("adf_card", plan_limits::adfCard);
    table.refuseOtherKeys();
    return plan;
}

FlightPlan readStart(PlanTable table, const AuthoredChart& chart) {
    const Slot station = readStation(table, "station", chart, [](Slot) { return true; });
    const FromStation seen{readDirection(table, "radial"), readDistance(table, "distance")};
    FlightPlan plan;
    plan.position = placeOn(chart.position(station), seen);
    plan.start = LegReader(chart).settings(table);
    plan.start.heading = static_cast<std::int16_t>(readDirection(table, "heading"));
    plan.inst2 = readInstrument(table.part("left"));
    plan.inst3 = readInstrument(table.part("right"));
    table.refuseOtherKeys();
    plan.chart = chart.path;
    plan.seconds = plan_limits::seconds.highest;
    return plan;
}

} // namespace

Route readRoute(std::string_view text, const std::string& file, const ChartShelf& charts) {
    checkPlanBounds(text, file);
    PlanTable root = PlanTable::parse(text, file);
    Route route;
    route.file = file;
    root.need("flight");
    route.name = *root.text("flight", isFileStem, "a name of at most 200 letters without '/'");
    route.chart = readChartOf(root, file, charts);
    root.need("start");
    route.start = readStart(root.part("start"), route.chart);
    route.start.file = file;
    route.start.chartLine = root.lineOf("chart");
    const LegReader legs(route.chart);
    for (const PlanTable& table : root.parts("leg"))
        route.legs.push_back(legs.read(table));
    if (route.legs.empty())
        root.refuse("a [[leg]] that is flown");
    root.refuseOtherKeys();
    return route;
}

} // namespace tarnel
