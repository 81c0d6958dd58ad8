#pragma once

#include "debrief/debrief.h"
#include "engine/user_control_2.h"
#include "shell/chart_display.h"
#include "shell/debrief_controls.h"
#include "shell/replay_deck.h"
#include "shell/task_choice.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <vector>

namespace tarnel {

/// A flight at a task, and what was made of it.
struct Attempt {
    int number = 1; ///< counted from the first at that task
    std::vector<Sample> samples;
    Debrief debrief;
};

/// `DebriefDesk`: shows a flight beside what it should have been: which flight, held to which task
/// and how closely, which finding is looked at, and the attempts before it. The moment that is
/// looked at is the replay's.
class DebriefDesk {
  public:
    struct Given {
        UserControl2& sim;
        ReplayDeck& replay;
        ChartDisplay& display;
        CheckBox& lock;        ///< of the instruments
        CommandButton& button; ///< that opens it after a flight of one's own
        /// Whether nothing would be told that a question asks for.
        std::function<bool()> mayShow;
        /// Asks whether a question that stands open may be told, and gives it up then.
        std::function<bool()> giveUp;
        /// Whether the student has flown what is in memory at a question or a practice flight.
        std::function<bool()> ownFlight;
        /// The task that the flight in memory was flown at, if it had one.
        std::function<std::optional<Task>()> knownTask;
        /// What the panel makes likely where no task is known.
        std::function<TaskChoice()> proposal;
        /// The flight that was to be flown after; without samples where there is none.
        std::function<std::span<const Sample>()> reference;
        /// Takes the aircraft to the start of what was flown.
        std::function<void()> flyAgain;
    };
    DebriefDesk(DebriefControls& debriefControls, Given what);

    [[nodiscard]] bool isOpen() const { return shown; }
    /// Opens the debrief of the flight in memory, at its task or to choose one. That of a flight of
    /// the student's own at a question asks first where it would tell an answer.
    void open();
    /// The same for a flight that was just loaded: the last of `flights`, which are attempts at
    /// `task`, the oldest first, at most `mostAttempts`.
    void open(std::vector<Attempt> flights, const std::optional<Task>& task);
    /// Takes the trainer back to where it was.
    void close();

    /// Whether the student chooses the task.
    [[nodiscard]] bool choosesTask() const { return choosing; }
    [[nodiscard]] const TaskChoice& choice() const { return asked; }
    void choose(const TaskChoice& next);
    [[nodiscard]] bool hasReference() const { return !given.reference().empty(); }

    [[nodiscard]] Strictness strictness() const { return limits; }
    /// The task and the flight that is looked at; null before a task is known.
    [[nodiscard]] const Task* task() const { return held ? &*held : nullptr; }
    [[nodiscard]] const Attempt* attempt() const { return held ? &attempts.back() : nullptr; }
    /// Those before it that are shown beside it, the oldest first.
    [[nodiscard]] std::span<const Attempt> compared() const;

    /// The finding that is looked at, counted from 0; none at first in a flight without a fault.
    [[nodiscard]] std::optional<std::size_t> finding() const { return chosen; }
    /// Looks at a finding, from its first sample on.
    void chooseFinding(std::size_t index);
    /// Looks at the next finding by time, or at the one before.
    void stepFinding(bool forwards);

    /// The sample that is looked at, from 0.
    [[nodiscard]] int moment() const;
    /// Moves the replay. A sample beyond the flight's ends is brought to them.
    void goTo(int sample);

    /// A step of the tick: closes what is no longer true, and says what may be used.
    void follow();

    /// Counts the changes of what is shown, but for the moment.
    [[nodiscard]] std::uint64_t revision() const { return changes; }
    std::function<void()> changed; ///< whether it is open
    /// A flight of the student's own has been judged that was not before.
    std::function<void(const Attempt&)> onJudged;

    /// As many attempts are kept.
    static constexpr std::size_t mostAttempts = 3;

  private:
    [[nodiscard]] bool mayOpen() const;
    void begin(const std::optional<Task>& known);
    void showAsBefore() const;
    void end();
    void hold(const Task& next);
    bool takeFlight();
    void judgeAll();
    void lookAtWorst();
    void frame() const;
    void updateControls();
    void touch() { ++changes; }

    DebriefControls& controls;
    Given given;
    bool shown = false;
    bool choosing = false;
    TaskChoice asked;
    std::optional<Task> held;     ///< of the flight that is shown
    std::optional<Task> lastTask; ///< that the attempts were flown at, if it is known
    Strictness limits = Strictness::standard;
    std::vector<Attempt> attempts; ///< at that task, the one looked at last
    int flown = 0;                 ///< at that task
    std::optional<std::size_t> chosen;
    std::uint64_t flight = 0; ///< the recording's count of changes when it was opened
    std::uint64_t changes = 0;
    struct {
        SplitPosition centre;
        std::int16_t scale = 0;
        int lock = 0;
        bool hidden = false; ///< the aircraft
        std::int16_t sample = 1;
    } before; ///< it was opened
};

} // namespace tarnel
