#pragma once

#include "exercises/qa_form.h"
#include "shell/box_desk.h"
#include "shell/course_desk.h"
#include "shell/exercise_conduct.h"
#include "shell/outside_world.h"
#include "shell/training_log.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tarnel {

/// `TrainingDesk`: writes what is answered and flown into the log, and starts exercises with what
/// it tells. Whatever happens to the log, the trainer goes on: what can't be kept is told once.
class TrainingDesk {
  public:
    using Opening = std::function<std::unique_ptr<TrainingLog>(TrainingDesk&)>;

    TrainingDesk(QAform& exercises, ExerciseConduct& conduct, CourseDesk& courseDesk,
                 BoxDesk& boxDesk, OutsideWorld& world);

    /// Where the log is from now on: called when it is needed first. Without one nothing is kept.
    void useLog(Opening opening) { open = std::move(opening); }
    [[nodiscard]] bool hasLog() const { return open != nullptr; }
    /// Does something with the log. False if there is none or if that failed.
    bool with(const std::function<void(TrainingLog&)>& work);
    /// The log was damaged and lies at `path` now.
    void tellSetAside(const std::string& path);

    /// Keeps a flight that was judged. Its number; nothing if it can't be kept.
    std::optional<std::int64_t> keepFlight(LoggedFlight flight, const std::string& session);
    [[nodiscard]] FlightLimits limits() const;
    /// As the user sets them; flights that are too many go at once.
    void setLimits(const FlightLimits& limits);

    /// Starts an exercise with what went wrong in it, or with the questions that train `spot`,
    /// those that went wrong first. Does nothing while the exercises rest, or for a course that is
    /// gone.
    void practise(const std::string& courseKey, ExerciseType type, std::optional<Text> spot = {});
    /// The same for one after the other of these exercises of a course, and only for what went
    /// wrong the last time; the next one starts when all of one was right. A box tells if nothing
    /// went wrong.
    void practiseAll(const std::string& courseKey, const std::vector<ExerciseType>& exercises);
    /// How many questions of an exercise went wrong the last time.
    [[nodiscard]] int mistakesOf(const std::string& courseKey, ExerciseType type);

    /// Writes all answers into a file that the user picks, with commas between the values.
    void exportAnswers();
    /// Asks first, then deletes all that was answered and flown. False if it was not.
    bool deleteEverything();

  private:
    void note(const JudgedRow& row);
    void roundEnds();
    void goOn();
    void tell(const LogFailure& failure);
    MistakeRound roundOf(const Course& course, ExerciseType type,
                         const std::vector<std::int64_t>& questions);
    MistakeRound spotRound(TrainingLog& log, const Course& course, ExerciseType type,
                           const std::vector<std::int64_t>& questions, Text spot);
    std::int64_t now() { return outside.millisecondsNow(); }

    QAform& form;
    ExerciseConduct& exercise;
    CourseDesk& courses;
    BoxDesk& boxes;
    OutsideWorld& outside;
    Opening open;
    std::unique_ptr<TrainingLog> log; ///< null until it is needed
    std::optional<LogTrouble> told;   ///< the trouble that was told last and still lasts
    std::optional<Text> wantedSpot;   ///< of the exercise that is about to start
    struct {
        std::string course;
        std::vector<ExerciseType> exercises; ///< that are still to come
        bool goesOn = false;                 ///< with the next one when the present one is left
        bool runs = false;                   ///< an exercise of it is about to start
    } ahead;                                 ///< in the mistakes of all exercises
    std::int64_t asked = 0;                  ///< when the question was put up
    std::int64_t answering = 0;              ///< since when its present row is answered
};

} // namespace tarnel
