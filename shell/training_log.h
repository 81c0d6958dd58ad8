#pragma once

#include "debrief/debrief.h"
#include "exercises/exercise_catalogue.h"
#include "exercises/mistake_round.h"
#include "strings/text.h"

#include <cstdint>
#include <exception>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tarnel {

/// What is counted of an answered row. Times are milliseconds since 1970 UTC.
struct AnswerFacts {
    std::int64_t when = 0;  ///< of the answer
    std::int64_t asked = 0; ///< when its question was put up
    int course = 0;         ///< the number of a `LoggedCourse`
    ExerciseType exercise{};
    std::int64_t question = 0; ///< its key
    int row = 0;               ///< from 0
    Text spot{};               ///< what the row trains
    bool right = false;
    std::int64_t milliseconds = 0; ///< that the answer took
};

/// A course that has answers, by a number that holds within the log.
struct LoggedCourse {
    int number = 0;
    std::string key;  ///< empty for the shipped one
    std::string name; ///< as the user has it
};

/// All that is kept of an answered row. Its course goes by key and name; the number is the log's.
struct AnsweredRow : AnswerFacts {
    std::string courseKey;
    std::string courseName;
    int rows = 0; ///< of the question
    std::string given;
    std::string answer; ///< the right one
};

/// A flight that was judged, without its samples.
struct LoggedFlight {
    std::int64_t id = 0;                ///< given by the log
    std::int64_t when = 0;              ///< milliseconds since 1970 UTC
    std::string taskKey = {};           ///< the same for attempts at the same task
    std::int64_t fingerprint = 0;       ///< tells flights at a task apart; 0 if it is not known
    std::string title = {};             ///< the task in words
    int attempt = 1;                    ///< at that task, counted by the log
    std::vector<Finding> findings = {}; ///< worst first
    std::int64_t bytes = 0;             ///< of its session file
    bool pinned = false;                ///< it stays, however many come
};

/// How many flights are kept, and how large they are together, besides those that are pinned.
struct FlightLimits {
    int most = 200;
    std::int64_t mostBytes = std::int64_t{500} << 20;
};

/// Why something could not be written down or read.
enum class LogTrouble { unwritable, damaged, ofNewerVersion, busy };

/// What a log throws if it can't do its work; nothing has changed then.
class LogFailure : public std::exception {
  public:
    LogFailure(LogTrouble trouble, std::string detail)
        : cause(trouble), summary(std::move(detail)) {}
    [[nodiscard]] LogTrouble trouble() const { return cause; }
    [[nodiscard]] const char* what() const noexcept override { return summary.c_str(); }

  private:
    LogTrouble cause;
    std::string summary;
};

/// `TrainingLog`: what was answered and flown. Several programs may write to it at once. What has
/// been taken without a `LogFailure` outlasts whatever becomes of the program and of the computer's
/// power.
class TrainingLog {
  public:
    TrainingLog() = default;
    TrainingLog(const TrainingLog&) = delete;
    TrainingLog& operator=(const TrainingLog&) = delete;
    virtual ~TrainingLog() = default;

    virtual void add(const AnsweredRow& row) = 0;
    [[nodiscard]] virtual std::vector<LoggedCourse> courses() = 0;
    /// Hands over all answers, the oldest first, to `take`.
    using AnswerVisitor = std::function<void(const AnswerFacts&)>;
    virtual void eachAnswer(const AnswerVisitor& take) = 0;
    /// The same with all their texts, for an export.
    virtual void eachRow(const std::function<void(const AnsweredRow&)>& take) = 0;
    /// How each question of an exercise went the last time.
    [[nodiscard]] virtual std::vector<QuestionStanding> standings(const std::string& courseKey,
                                                                  ExerciseType exercise) = 0;

    /// Keeps a flight with the bytes of its session, and lets older ones go that are too many or
    /// too large together. Its number in the log. One with a number takes the place of the flight
    /// that has it, if that is still there and of the same task; one that is there already, by its
    /// fingerprint, is not kept twice.
    virtual std::int64_t add(const LoggedFlight& flight, const std::string& session,
                             const FlightLimits& limits) = 0;
    /// The newest first.
    [[nodiscard]] virtual std::vector<LoggedFlight> flights() = 0;
    /// The bytes of its session; nothing if its file is gone.
    [[nodiscard]] virtual std::optional<std::string> session(std::int64_t flight) = 0;
    virtual void pin(std::int64_t flight, bool pinned) = 0;
    virtual void remove(std::int64_t flight) = 0;
    /// Lets flights go until they keep within `limits`.
    virtual void prune(const FlightLimits& limits) = 0;

    /// Deletes all that was answered and flown.
    virtual void clear() = 0;
};

/// The flights that are too many or too large together, of `flights` (the newest first): the
/// oldest, but none that is pinned, and never the newest of the others, whatever the limits.
[[nodiscard]] std::vector<std::int64_t> flightsToLetGo(const std::vector<LoggedFlight>& flights,
                                                       const FlightLimits& limits);

} // namespace tarnel
