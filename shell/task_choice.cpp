#include "shell/task_choice.h"

#include <algorithm>
#include <cmath>

namespace tarnel {

namespace {

/// Whole degrees, 1 to 360.
int courseOf(double degrees) {
    const int whole = static_cast<int>(std::lround(degrees)) % 360;
    return whole <= 0 ? whole + 360 : whole;
}

struct Chooser {
    TaskChoice operator()(const LineTask& task) const {
        return {.kind = task.inbound ? TaskKind::trackTo : TaskKind::trackFrom,
                .station = task.station,
                .course = courseOf(task.course),
                .joins = task.joins};
    }
    TaskChoice operator()(const HoldTask& task) const {
        return {.kind = TaskKind::holding,
                .station = task.fix,
                .course = courseOf(task.inbound),
                .side = task.side,
                .minutes = task.minutes};
    }
    TaskChoice operator()(const ArcTask& task) const {
        return {.kind = TaskKind::arc,
                .station = task.station,
                .course = courseOf(task.final),
                .distance = task.distance,
                .clockwise = task.clockwise,
                .finalToStation = task.inbound};
    }
    TaskChoice operator()(const ReferenceTask&) const { return {.kind = TaskKind::reference}; }
    TaskChoice operator()(const WindTask& task) const { return (*this)(task.holding); }
};

} // namespace

std::optional<Task> taskOf(const TaskChoice& choice, std::span<const Sample> reference) {
    switch (choice.kind) {
    case TaskKind::trackTo:
    case TaskKind::trackFrom:
        return LineTask{.station = choice.station,
                        .course = static_cast<double>(choice.course),
                        .inbound = choice.kind == TaskKind::trackTo,
                        .joins = choice.joins};
    case TaskKind::holding:
        return HoldTask{choice.station, static_cast<double>(choice.course), choice.side,
                        choice.minutes};
    case TaskKind::arc:
        if (!hasDme(choice.station))
            return {};
        return ArcTask{choice.station, choice.distance, choice.clockwise,
                       static_cast<double>(choice.course), choice.finalToStation};
    case TaskKind::reference:
        break;
    }
    if (reference.empty())
        return {};
    return ReferenceTask{{reference.begin(), reference.end()}};
}

TaskChoice choiceOf(const Task& task) {
    return std::visit(Chooser{}, task);
}

Text nameOf(TaskKind kind) {
    static constexpr Text names[] = {Text::taskTrackTo, Text::taskTrackFrom, Text::taskHolding,
                                     Text::taskArc, Text::taskReference};
    return names[static_cast<std::size_t>(kind)];
}

} // namespace tarnel
