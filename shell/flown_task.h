#pragma once

#include "debrief/task.h"
#include "shell/exercise_conduct.h"
#include "shell/flight_switch.h"
#include "shell/practice_desk.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>

namespace tarnel {

/// A task, and what it is flown at: the name of the flight that shows it, else of the station.
/// Attempts at a task have both in common.
struct PlacedTask {
    Task task;
    std::string place; ///< may be empty for that of the station
};

/// `FlownTask`: the task that the flight in memory is flown at: that of the question or the
/// practice flight, or, where there is none of these, of a flight from the log or of what is flown
/// once more.
class FlownTask {
  public:
    struct Given {
        const UserControl2& sim;
        const FlightSwitch& flight;
        const ExerciseConduct& exercise;
        const QAform& form;
        const PracticeDesk& practice;
        /// The name of the flight that lies at a path.
        std::function<std::string(const std::string& path)> nameOf;
    };
    explicit FlownTask(Given what) : given(std::move(what)) {}

    /// Nothing if the student flies as he likes.
    [[nodiscard]] std::optional<Task> task() const;
    /// The same of the flight that starts now.
    [[nodiscard]] std::optional<Task> taskAhead() const;
    /// Whether the student has flown what is in memory at it.
    [[nodiscard]] bool isOwn() const;
    /// What the task is flown at; empty for the station.
    [[nodiscard]] std::string place() const;
    /// The flight that shows the task; without samples where there is none.
    [[nodiscard]] std::span<const Sample> reference() const;

    /// The flight in memory was flown at that task.
    void take(const PlacedTask& task) { other = {task, given.sim.recording.changes(), false}; }
    /// What is flown next is flown at that task, unless a question or a practice flight has one.
    void flyAgain(const Task& task);
    /// What is flown from here on has no task by itself.
    void drop() { other.reset(); }

  private:
    struct Other {
        PlacedTask placed;
        std::uint64_t flight = 0; ///< the recording's count of changes
        bool again = false;       ///< other flights are at it, too
    };
    [[nodiscard]] bool isSet() const { return given.exercise.runs() || given.practice.practises(); }
    [[nodiscard]] const PlacedTask* unset() const;

    Given given;
    std::optional<Other> other; ///< where neither question nor practice flight sets one
};

} // namespace tarnel
