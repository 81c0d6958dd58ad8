#include "shell/question_task.h"

#include "core/station_geometry.h"
#include "exercises/val_str.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cmath>
#include <limits>
#include <string_view>
#include <vector>

namespace tarnel {

namespace {

using enum StudyColumn;

constexpr std::array allSlots{Slot::vor1, Slot::vor2, Slot::ndb1, Slot::ndb2, Slot::localizer};

FromStation seenFrom(Slot slot, const Sample& sample) {
    return fromStation(inSlot(sample.traceStations, slot), {sample.traceLat, sample.traceLon});
}

bool isDigit(char letter) {
    return std::isdigit(static_cast<unsigned char>(letter)) != 0;
}

/// The numbers that stand in a text, in their order; with a point or a comma before one decimal.
std::vector<double> numbersIn(std::string_view text) {
    std::vector<double> numbers;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (!isDigit(text[i]))
            continue;
        double number = 0;
        for (; i < text.size() && isDigit(text[i]); ++i)
            number = number * 10 + (text[i] - '0');
        if (i + 1 < text.size() && (text[i] == '.' || text[i] == ',') && isDigit(text[i + 1])) {
            number += (text[i + 1] - '0') / 10.0;
            i += 2;
        }
        numbers.push_back(number);
    }
    return numbers;
}

bool says(std::string_view text, std::string_view word) {
    return text.find(word) != std::string_view::npos;
}

/// The slot of least `cost`.
template <class Cost>
Slot best(Cost cost) {
    return *std::ranges::min_element(allSlots, {}, cost);
}

Slot nearestStation(std::span<const Sample> reference) {
    return best([&](Slot slot) {
        double nearest = std::numeric_limits<double>::infinity();
        for (const Sample& sample : reference)
            nearest = std::min(nearest, seenFrom(slot, sample).distance);
        return nearest;
    });
}

/// A required bearing, such as "120 NDB MNW".
std::optional<Task> bearingTask(const StudyRecord& record, std::span<const Sample> reference,
                                bool inbound) {
    constexpr double near = 5; ///< degrees
    const double course = Val(record[qa]);
    const auto offBearing = [&](Slot slot) {
        if (slot == Slot::localizer || (says(record[qa], "NDB") && hasDme(slot)) ||
            (says(record[qa], "VOR") && !hasDme(slot)))
            return std::numeric_limits<double>::infinity();
        const double radial = seenFrom(slot, reference.back()).radial;
        return std::abs(turnBetween(course, radial + (inbound ? 180 : 0)));
    };
    LineTask task{.station = best(offBearing), .course = course, .inbound = inbound, .joins = true};
    if (numbersIn(record[qa]).empty() || offBearing(task.station) > near)
        return std::nullopt;
    // On the bearing already there is nothing to be cut.
    if (!numbersIn(record[ans6]).empty())
        task.cut = std::abs(turnBetween(course, Val(record[ans6])));
    if (task.cut == 0.0)
        task.cut.reset();
    return task;
}

HoldTask holdTask(double inbound, HoldingSide side, std::span<const Sample> reference) {
    return {nearestStation(reference), circle(inbound), side, 1};
}

/// "Inbound 150, turns right"; the wind itself is that of the flight.
std::optional<Task> windTask(const StudyRecord& record, std::span<const Sample> reference) {
    const std::vector<double> numbers = numbersIn(record[qc]);
    const bool right = says(record[qc], "right") || says(record[qc], "rechts");
    const bool left = says(record[qc], "left") || says(record[qc], "links");
    if (numbers.empty() || right == left)
        return std::nullopt;
    return WindTask{
        holdTask(numbers.front(), right ? HoldingSide::right : HoldingSide::left, reference)};
}

/// Radial, arc and final as the question names them, such as "MUN radial 005 inbound. DME arc 10 NM
/// clockwise, final 275."; round which way is flown.
std::optional<Task> arcTask(const StudyRecord& record, std::span<const Sample> reference) {
    constexpr double near = 1; ///< NM
    const std::vector<double> numbers = numbersIn(record[qc].substr(0, record[qc].rfind('.')));
    if (numbers.size() < 3)
        return std::nullopt;
    const double distance = numbers[numbers.size() - 2];
    const double final = numbers.back();
    const auto offArc = [&](Slot slot) {
        if (!hasDme(slot))
            return std::numeric_limits<double>::infinity();
        std::vector<double> apart;
        for (const Sample& sample : reference)
            apart.push_back(
                std::abs(slantRange(seenFrom(slot, sample).distance, fixedAltitude) - distance));
        const auto middle = apart.begin() + static_cast<std::ptrdiff_t>(apart.size() / 2);
        std::ranges::nth_element(apart, middle);
        return *middle;
    };
    const Slot station = best(offArc);
    if (offArc(station) > near)
        return std::nullopt;
    double round = 0;
    for (std::size_t i = 1; i < reference.size(); ++i)
        round += turnBetween(seenFrom(station, reference[i - 1]).radial,
                             seenFrom(station, reference[i]).radial);
    const double radial = seenFrom(station, reference.back()).radial;
    return ArcTask{station, distance, round > 0, final, std::abs(turnBetween(final, radial)) > 90};
}

std::optional<Task> ownTask(ExerciseType type, const StudyRecord& record,
                            std::span<const Sample> reference) {
    switch (type) {
    case ExerciseType::hsiHolding:
    case ExerciseType::dgHolding:
        if (numbersIn(record[ans2]).empty())
            return std::nullopt;
        return holdTask(Val(record[ans2]),
                        record[ans3] == "Standard" ? HoldingSide::right : HoldingSide::left,
                        reference);
    case ExerciseType::qdm:
        return bearingTask(record, reference, true);
    case ExerciseType::qdr:
        return bearingTask(record, reference, false);
    case ExerciseType::wind:
        return windTask(record, reference);
    case ExerciseType::dmeArc:
        return arcTask(record, reference);
    default:
        return std::nullopt;
    }
}

} // namespace

std::optional<Task> taskOf(ExerciseType type, const StudyRecord& record,
                           std::span<const Sample> reference) {
    if (reference.empty())
        return std::nullopt;
    if (std::optional<Task> task = ownTask(type, record, reference))
        return task;
    return ReferenceTask{{reference.begin(), reference.end()}};
}

} // namespace tarnel
