#include "shell/flown_task.h"

#include "shell/question_task.h"

namespace tarnel {

const PlacedTask* FlownTask::unset() const {
    const bool holds =
        !isSet() && other && (other->again || other->flight == given.sim.recording.changes());
    return holds ? &other->placed : nullptr;
}

std::optional<Task> FlownTask::task() const {
    if (given.exercise.runs() && given.form.posedRecord())
        return taskOf(static_cast<ExerciseType>(given.form.c_QAtype.get()),
                      *given.form.posedRecord(), reference());
    if (const PlacedTask* placed = unset())
        return placed->task;
    if (reference().empty())
        return {};
    return ReferenceTask{{reference().begin(), reference().end()}};
}

std::optional<Task> FlownTask::taskAhead() const {
    return isSet() || (other && other->again) ? task() : std::nullopt;
}

bool FlownTask::isOwn() const {
    return !given.flight.flies() &&
           (given.exercise.studentHasFlown() || given.practice.hasOwnFlight() ||
            (unset() && other->flight != given.sim.recording.changes()));
}

std::span<const Sample> FlownTask::reference() const {
    if (isSet())
        return given.practice.practisedFlight();
    const PlacedTask* placed = unset();
    const auto* shown = placed ? std::get_if<ReferenceTask>(&placed->task) : nullptr;
    return shown ? std::span<const Sample>(shown->samples) : std::span<const Sample>();
}

std::string FlownTask::place() const {
    if (isSet())
        return given.nameOf(given.practice.practisedFile());
    return unset() ? unset()->place : std::string();
}

void FlownTask::flyAgain(const Task& task) {
    if (!isSet())
        other = {{task, place()}, given.sim.recording.changes(), true};
}

} // namespace tarnel
