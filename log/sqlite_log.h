#pragma once

#include "log/log_folder.h"
#include "shell/training_log.h"

#include <memory>

namespace tarnel {

class LogDatabase;

/// `SqliteLog`: the training log in a folder of the user's. Nothing is opened before the first
/// call; a damaged log is set aside then, or when it shows, and a new one begun.
class SqliteLog : public TrainingLog {
  public:
    explicit SqliteLog(std::string folder);
    ~SqliteLog() override;

    /// Called with the new name of a damaged log.
    std::function<void(const std::string&)> onSetAside = [](const std::string&) {};

    void add(const AnsweredRow& row) override;
    std::vector<LoggedCourse> courses() override;
    void eachAnswer(const AnswerVisitor& take) override;
    void eachRow(const std::function<void(const AnsweredRow&)>& take) override;
    std::vector<QuestionStanding> standings(const std::string& courseKey,
                                            ExerciseType exercise) override;
    std::int64_t add(const LoggedFlight& flight, const std::string& session,
                     const FlightLimits& limits) override;
    std::vector<LoggedFlight> flights() override;
    std::optional<std::string> session(std::int64_t flight) override;
    void pin(std::int64_t flight, bool pinned) override;
    void remove(std::int64_t flight) override;
    void prune(const FlightLimits& limits) override;
    void clear() override;

  private:
    LogDatabase& database();
    template <class Work>
    auto run(Work work);
    void replaceDamaged();
    void removeOrphans(LogDatabase& log) const;
    [[nodiscard]] std::int64_t put(LogDatabase& log, const LoggedFlight& flight,
                                   const std::string& file, std::size_t bytes);

    LogFolder folder;
    std::unique_ptr<LogDatabase> open; ///< null until it is needed
};

} // namespace tarnel
