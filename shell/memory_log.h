#pragma once

#include "shell/training_log.h"

#include <map>

namespace tarnel {

/// `MemoryLog`: a training log that ends with the program, for tests and for tools.
class MemoryLog : public TrainingLog {
  public:
    void add(const AnsweredRow& row) override;
    std::vector<LoggedCourse> courses() override { return known; }
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
    struct Kept {
        LoggedFlight flight;
        std::string session;
    };
    std::vector<AnsweredRow> rows;
    std::vector<LoggedCourse> known;
    std::map<std::int64_t, Kept> flown;
    std::int64_t lastFlight = 0;
};

} // namespace tarnel
