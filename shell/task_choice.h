#pragma once

#include "debrief/task.h"
#include "strings/text.h"

#include <optional>
#include <span>

namespace tarnel {

/// The kinds of tasks that a flight without a known one can be held to.
enum class TaskKind { trackTo, trackFrom, holding, arc, reference };

/// A task as the student puts it together; what its kind does not need keeps its value.
struct TaskChoice {
    TaskKind kind = TaskKind::trackTo;
    Slot station = Slot::vor1;
    int course = 360; ///< degrees true, 1 to 360: of the track, inbound, of the final
    bool joins = true;
    HoldingSide side = HoldingSide::right;
    double minutes = 1;
    double distance = 10; ///< NM
    bool clockwise = true;
    bool finalToStation = true;
    bool operator==(const TaskChoice&) const = default;
};

/// The task of a choice; nothing for a reference where there is none, and for an arc about a
/// station without DME.
[[nodiscard]] std::optional<Task> taskOf(const TaskChoice& choice,
                                         std::span<const Sample> reference);

/// The choice that `task` would be put together by.
[[nodiscard]] TaskChoice choiceOf(const Task& task);

[[nodiscard]] Text nameOf(TaskKind kind);

} // namespace tarnel
