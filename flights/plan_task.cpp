#include "flights/plan_task.h"

#include "core/run_time_error.h"
#include "flights/flight_plan.h"
#include "flights/plan_error.h"
#include "flights/plan_table.h"
#include "persistence/file_bytes.h"
#include "persistence/session_file.h"
#include "platform/path_text.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <initializer_list>
#include <utility>

namespace tarnel {

namespace {

template <class Value>
using Word = std::pair<std::string_view, Value>;

/// The value of one of a few words; nothing if the table lacks the key.
template <class Value, std::size_t count>
std::optional<Value> oneOf(PlanTable& table, std::string_view key,
                           const std::array<Word<Value>, count>& words) {
    std::string expected;
    for (std::size_t i = 0; i < count; ++i)
        expected += (i == 0           ? "\""
                     : i + 1 == count ? "\" or \""
                                      : "\", \"") +
                    std::string(words[i].first);
    const auto find = [&](std::string_view text) {
        return std::ranges::find(words, text, &Word<Value>::first);
    };
    const auto text = table.text(
        key, [&](const std::string& word) { return find(word) != words.end(); }, expected + "\"");
    return text ? std::optional(find(*text)->second) : std::nullopt;
}

constexpr std::array stations = {Word<Slot>{"VOR1", Slot::vor1}, Word<Slot>{"VOR2", Slot::vor2},
                                 Word<Slot>{"NDB1", Slot::ndb1}, Word<Slot>{"NDB2", Slot::ndb2},
                                 Word<Slot>{"LOC", Slot::localizer}};
constexpr std::array dmeStations = {Word<Slot>{"VOR1", Slot::vor1}, Word<Slot>{"VOR2", Slot::vor2},
                                    Word<Slot>{"LOC", Slot::localizer}};
constexpr std::array sides = {Word<HoldingSide>{"left", HoldingSide::left},
                              Word<HoldingSide>{"right", HoldingSide::right}};
constexpr std::array senses = {Word<bool>{"clockwise", true}, Word<bool>{"anticlockwise", false}};
constexpr std::array ways = {Word<bool>{"inbound", true}, Word<bool>{"outbound", false}};
constexpr std::array strictnesses = {Word<Strictness>{"wide", Strictness::wide},
                                     Word<Strictness>{"standard", Strictness::standard},
                                     Word<Strictness>{"check ride", Strictness::checkRide}};

enum class Kind { line, holding, arc, wind, reference };
constexpr std::array kinds = {Word<Kind>{"line", Kind::line}, Word<Kind>{"holding", Kind::holding},
                              Word<Kind>{"arc", Kind::arc}, Word<Kind>{"wind", Kind::wind},
                              Word<Kind>{"reference", Kind::reference}};

/// What each task has: a course over a station.
struct CourseOver {
    Slot station = Slot::vor1;
    double degrees = 0;
};

template <std::size_t count>
CourseOver readCourse(PlanTable& table, const std::array<Word<Slot>, count>& offered,
                      const char* key = "course") {
    CourseOver read;
    read.station = oneOf(table, "station", offered).value_or(read.station);
    read.degrees = table.whole(key, plan_limits::direction).value_or(0);
    return read;
}

/// Behind all that is read, so that a wrong value is told before a missing one.
void needAll(PlanTable& table, std::initializer_list<const char*> keys) {
    for (const char* key : keys)
        table.need(key);
}

LineTask readLine(PlanTable& table) {
    const CourseOver over = readCourse(table, stations);
    LineTask task{.station = over.station, .course = over.degrees};
    task.inbound = oneOf(table, "way", ways).value_or(true);
    task.cut = table.number("cut", plan_limits::cut);
    task.joins = table.truth("joins").value_or(task.cut.has_value());
    needAll(table, {"station", "course"});
    return task;
}

HoldTask readHolding(PlanTable& table) {
    const CourseOver over = readCourse(table, stations);
    HoldTask task{.fix = over.station, .inbound = over.degrees};
    task.side = oneOf(table, "turns", sides).value_or(task.side);
    task.minutes = table.number("minutes", plan_limits::legMinutes).value_or(task.minutes);
    needAll(table, {"station", "course"});
    return task;
}

ArcTask readArc(PlanTable& table) {
    const CourseOver over = readCourse(table, dmeStations, "final");
    ArcTask task{.station = over.station, .final = over.degrees};
    task.distance = table.number("distance", plan_limits::arcDistance).value_or(0);
    task.clockwise = oneOf(table, "sense", senses).value_or(true);
    task.inbound = oneOf(table, "way", ways).value_or(true);
    needAll(table, {"station", "distance", "sense", "final"});
    return task;
}

} // namespace

std::optional<PlannedTask> readTask(PlanTable& root, const std::string& file) {
    PlanTable table = root.part("task");
    if (root.lineOf("task") == 0)
        return std::nullopt;
    PlannedTask planned;
    const auto kind = oneOf(table, "kind", kinds);
    table.need("kind");
    planned.limits = oneOf(table, "limits", strictnesses).value_or(planned.limits);
    switch (*kind) {
    case Kind::line:
        planned.task = readLine(table);
        break;
    case Kind::holding:
        planned.task = readHolding(table);
        break;
    case Kind::wind:
        planned.task = WindTask{readHolding(table)};
        break;
    case Kind::arc:
        planned.task = readArc(table);
        break;
    case Kind::reference:
        planned.task = ReferenceTask{};
        planned.session = table.text(
            "session", [](const std::string& path) { return !path.empty(); }, "a path");
        planned.sessionLine = table.lineOf("session");
        table.need("session");
        planned.session = textOf(pathOf(file).parent_path() / pathOf(*planned.session));
    }
    table.refuseOtherKeys();
    return planned;
}

Task wholeTask(const PlannedTask& planned, const std::string& file) {
    if (!planned.session)
        return planned.task;
    try {
        const SessionFile session = readSession(readFileBytes(*planned.session, largestSession));
        if (!session.samples.empty())
            return ReferenceTask{session.samples};
    } catch (const RunTimeError&) {
        // It is told as a fault of the plan.
    }
    throw PlanError(file, planned.sessionLine, "a session that can be read");
}

} // namespace tarnel
