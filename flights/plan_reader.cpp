#include "flights/plan_reader.h"

#include "core/number_text.h"
#include "core/recording.h"
#include "core/run_time_error.h"
#include "flights/plan_bounds.h"
#include "flights/plan_error.h"
#include "flights/plan_table.h"
#include "persistence/file_bytes.h"
#include "persistence/text_encoding.h"
#include "platform/path_text.h"
#include "strings/cause_text.h"
#include "strings/string_table.h"

#include <algorithm>
#include <charconv>
#include <filesystem>

namespace tarnel {

namespace {

using Whole = std::optional<std::int16_t>;

std::optional<std::int64_t> wholeNumber(std::string_view text) {
    std::int64_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size())
        return std::nullopt;
    return value;
}

void readAircraft(PlanTable table, FlightPlan& plan) {
    const auto latitude = table.number("latitude", plan_limits::latitude);
    const auto longitude = table.number("longitude", plan_limits::longitude);
    plan.start.heading = table.whole("heading", plan_limits::direction);
    plan.start.tas = table.wholeOrZero("tas", plan_limits::airSpeed);
    table.refuseOtherKeys();
    table.needBothOrNone("latitude", "longitude");
    if (latitude && longitude)
        plan.position = {*latitude, *longitude};
}

void readWind(PlanTable table, FlightPlan& plan) {
    const Whole direction = table.whole("direction", plan_limits::direction);
    const Whole speed = table.whole("speed", plan_limits::windSpeed);
    table.refuseOtherKeys();
    table.needBothOrNone("direction", "speed");
    if (direction && speed)
        plan.start.wind = {static_cast<double>(*direction), *speed};
}

void readRadios(PlanTable& table, FlightSettings& settings) {
    settings.nav1 = table.whole("nav1", plan_limits::vorSlot);
    settings.nav2 = table.whole("nav2", plan_limits::vorSlot);
    settings.adf = table.whole("adf", plan_limits::ndbSlot);
    settings.dme = table.whole("dme", plan_limits::vorSlot);
}

InstrumentPlan readInstrument(PlanTable table, Whole& obs) {
    InstrumentPlan plan;
    const auto type = table.text(
        "type", [](std::string_view word) { return displayOf(word).has_value(); },
        R"("ADF", "RMI", "VOR", "HSI" or "DG")");
    if (type)
        plan.type = displayOf(*type);
    plan.receiver = table.whole("nav", plan_limits::receiver);
    plan.adfCard = table.whole("adf_card", plan_limits::adfCard);
    obs = table.whole("obs", plan_limits::direction);
    table.refuseOtherKeys();
    return plan;
}

void readComment(PlanTable& table, FlightSettings& settings) {
    const auto fits = [](const std::string& text) {
        return !text.empty() && text.find_first_of("\r\n") == std::string::npos &&
               characterCount(text) <= plan_limits::commentLength;
    };
    settings.comment =
        table.text("comment", fits,
                   "one line of text of at most " +
                       numberText(std::int64_t{plan_limits::commentLength}) + " characters");
    settings.commentEnds = table.truth("comment_end").value_or(false);
    if (settings.comment && settings.commentEnds)
        table.refuse("either 'comment' or 'comment_end'");
}

FlightEvent readEvent(PlanTable table, const Range<double>& flight) {
    FlightEvent event;
    FlightSettings& settings = event.settings;
    event.at = table.number("at", flight).value_or(0);
    settings.heading = table.whole("heading", plan_limits::direction);
    settings.tas = table.wholeOrZero("tas", plan_limits::airSpeed);
    settings.obs2 = table.whole("obs2", plan_limits::direction);
    settings.obs3 = table.whole("obs3", plan_limits::direction);
    readRadios(table, settings);
    const auto wind = table.text(
        "wind", [](std::string_view text) { return windFrom(text).has_value(); },
        "direction " + plan_limits::direction.inWords() + " and speed " +
            plan_limits::windSpeed.inWords() + R"(, such as "270/15")");
    if (wind)
        settings.wind = windFrom(*wind);
    readComment(table, settings);
    table.refuseOtherKeys();
    table.need("at");
    return event;
}

void readEvents(PlanTable& root, const Range<double>& flight, FlightPlan& plan) {
    std::size_t comments = 0;
    for (const PlanTable& table : root.parts("event")) {
        plan.events.push_back(readEvent(table, flight));
        if (plan.events.back().settings.comment && ++comments > Comments::count)
            table.refuse("at most " + numberText(static_cast<std::int64_t>(Comments::count)) +
                         " comments in a plan");
    }
    std::stable_sort(plan.events.begin(), plan.events.end(),
                     [](const FlightEvent& a, const FlightEvent& b) { return a.at < b.at; });
}

void readChart(PlanTable& root, FlightPlan& plan) {
    const auto chart = root.text(
        "chart", [](const std::string& path) { return !path.empty(); }, "a path");
    if (!chart)
        return;
    plan.chart = textOf(pathOf(plan.file).parent_path() / pathOf(*chart));
    plan.chartLine = root.lineOf("chart");
}

FlightPlan readRoot(PlanTable root, const std::string& file) {
    FlightPlan plan;
    plan.file = file;
    readChart(root, plan);
    plan.seconds =
        root.number("seconds", plan_limits::seconds).value_or(plan_limits::seconds.highest);
    plan.northUp = root.truth("north_up").value_or(true);
    readAircraft(root.part("aircraft"), plan);
    readWind(root.part("wind"), plan);
    PlanTable radios = root.part("radios");
    readRadios(radios, plan.start);
    radios.refuseOtherKeys();
    plan.inst2 = readInstrument(root.part("inst2"), plan.start.obs2);
    plan.inst3 = readInstrument(root.part("inst3"), plan.start.obs3);
    plan.task = readTask(root, file);
    readEvents(root, {plan_limits::seconds.lowest, plan.seconds}, plan);
    root.refuseOtherKeys();
    root.need("seconds");
    return plan;
}

} // namespace

std::optional<Wind> windFrom(std::string_view text) {
    const auto slash = text.find('/');
    if (slash == std::string_view::npos)
        return std::nullopt;
    const auto direction = wholeNumber(text.substr(0, slash));
    const auto speed = wholeNumber(text.substr(slash + 1));
    if (!direction || !plan_limits::direction.contains(*direction) || !speed ||
        !plan_limits::windSpeed.contains(*speed))
        return std::nullopt;
    return Wind{static_cast<double>(*direction), static_cast<std::int16_t>(*speed)};
}

FlightPlan readPlan(std::string_view text, const std::string& file) {
    checkPlanBounds(text, file);
    return readRoot(PlanTable::parse(text, file), file);
}

FlightPlan readPlanFile(const std::string& file) {
    std::string text;
    try {
        text = readFileBytes(file, largestPlan);
    } catch (const RunTimeError& error) {
        throw PlanError(file, 0,
                        "a plan that can be read: " +
                            std::string(causeText(englishTable(), error.cause())));
    }
    return readPlan(text, file);
}

} // namespace tarnel
