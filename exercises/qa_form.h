#pragma once

#include "core/property.h"
#include "exercises/course.h"
#include "exercises/exercise_catalogue.h"
#include "exercises/exercise_panel.h"
#include "exercises/mistake_round.h"
#include "exercises/question_draw.h"
#include "exercises/statistics.h"
#include "exercises/study_file.h"

#include <memory>
#include <optional>

namespace tarnel {

/// The bytes of a file; nothing if it can't be read. The path has "\" between the folders.
using FileReader = std::function<std::optional<std::string>(const std::string& path)>;

/// What the exercises need from outside.
struct ExerciseSurroundings {
    const StringTable& texts;
    SettingsStore& settings;
    FileReader readFile;
    SeedSource seed;
};

/// A row that was answered, for whoever keeps a log of answers.
struct JudgedRow {
    const Course& course;
    ExerciseType exercise;
    std::int64_t question; ///< its key
    int row;               ///< from 0
    int rows;              ///< of the question
    Text spot;             ///< what it trains
    std::string given;
    std::string answer; ///< the right one
    bool right;
};

/// `QAform`: the quiz over ten exercises: it asks the questions of a study file, judges, counts and
/// reveals. It does nothing to the flight itself: what a question needs of it is left in the
/// properties, which the main tick polls.
class QAform {
  public:
    /// `form` counts the changes of all panels.
    QAform(FormState& form, ExerciseSurroundings surroundings);

    Statistics statistics;

    PropertyBag properties;
    /// An `ExerciseType`: setting it to 1 to 10 starts that exercise of the shipped
    /// course.
    Property<std::int16_t> c_QAtype{properties, "c_QAtype", 1, [this] { New_c_QAtype(); }};
    /// The session to be loaded next; whoever loads it clears the request.
    Property<std::string> c_QASessionFileName{properties, "c_QASessionFileName"};
    /// The folder of the shipped course.
    Property<std::string> c_MainAppPath{
        properties, "c_MainAppPath", {}, [this] { course = shippedCourse(c_MainAppPath); }};
    /// A `ShowResult`, cleared by whoever carries it out.
    Property<std::int16_t> c_showResult{properties, "c_showResult"};
    /// Above 0 while the student flies the question: the panel's code. Negated when the flight has
    /// ended: that unfolds the panel and asks for the question's session again, since the flight
    /// has overwritten it. Going on, leaving and asking for the solution end it so by themselves:
    /// an aircraft that still flies then is to be stopped.
    Property<std::int16_t> c_QAFly{properties, "c_QAFly", 0, [this] { New_c_QAFly(); }};
    /// Folds the panels to the small height, except the one for positions.
    Property<bool> c_smallFrame{properties, "c_smallFrame", false, [this] { fold(c_smallFrame); }};
    /// Above 0: the distance of track marks that the student's flight asks for, cleared when taken.
    Property<std::int16_t> c_TrackDelta{properties, "c_TrackDelta"};

    /// In which order a start asks: in that of the file or at random, as the panel has it, or what
    /// went wrong until all is right.
    enum class Order { usual, mistakes };
    /// Starts an exercise of that course.
    void open(const Course& from, ExerciseType type, Order order = Order::usual);

    /// A question is put up, and each answer to one of its rows.
    std::function<void()> onPosed = [] {};
    std::function<void(const JudgedRow&)> onJudged = [](const JudgedRow&) {};
    /// What there is to be asked again of an exercise with these questions. Without a log: nothing.
    std::function<MistakeRound(const Course&, ExerciseType, const std::vector<std::int64_t>&)>
        mistakes;
    /// The rows that are open show what is right and can't be answered any more, as behind the
    /// solution; the student's flight goes on.
    void giveUp();
    /// A round of them is over, and nothing stands on the panel but the word of it.
    std::function<void()> onRoundOver = [] {};
    /// Shows the next question of the running exercise.
    void DisplayQuestion();
    /// Reads the study file of that name for the current type. What can't be read is told in the
    /// panel's notice.
    void LoadStudyFile(const std::string& name);
    /// The session of the question that is up can't be loaded: the notice tells it in the
    /// question's place, and nothing is left to do but go on or leave.
    void sessionMissing(const std::string& told);
    /// Hands the path of the power tips to `showPowerTips`, if there is such a viewer.
    void LoadPowerTip();
    std::function<void(const std::string& path)> showPowerTips;

    [[nodiscard]] ExercisePanel& panel(PanelId id) { return *panels[static_cast<std::size_t>(id)]; }
    /// Whether a question stands on the panel; its session may still be asked for.
    [[nodiscard]] bool posed() const { return questionLive; }
    /// What stands in the study file on that question; null if none does.
    [[nodiscard]] const StudyRecord* posedRecord() const {
        return questionLive ? &currentRecord() : nullptr;
    }
    /// The panel of the running exercise; null if none runs.
    [[nodiscard]] ExercisePanel* activePanel();
    /// The widget of that name, null if no panel has it.
    [[nodiscard]] FormControl* find(std::string_view name);

  private:
    [[nodiscard]] const ExerciseKind* running() const;

    void New_c_QAtype();
    void New_c_QAFly();
    void fold(bool small);
    void connect(ExercisePanel& panel);

    void start(const ExerciseKind& kind, const Course& from, Order order = Order::usual);
    void loadStudyFileOf(const ExerciseKind& kind);
    void poseQuestion(const ExerciseKind& kind, ExercisePanel& shown);
    [[nodiscard]] bool followRound(ExercisePanel& shown);
    void stepQuestion(bool atRandom);
    void requestSession();
    [[nodiscard]] const StudyRecord& currentRecord() const {
        return study.records[static_cast<std::size_t>(questionIndex)];
    }

    void ask(ShowResult result) { c_showResult.publish(static_cast<std::int16_t>(result)); }
    void judge(ExercisePanel& panel, int row, int option);
    void shutRows(ExercisePanel& panel);
    void tellJudged(const Pick& pick, bool right);
    [[nodiscard]] bool allRight() const;
    void showSolution(ExercisePanel& panel);
    void flyQuestion(ExercisePanel& panel);
    void endFlight();
    void next();
    void countAnswer(const ExerciseKind& kind);
    void cancel();

    const StringTable& texts;
    FileReader readFile;
    QuestionDraw draw;
    std::array<std::unique_ptr<ExercisePanel>, panelCount> panels;

    std::unique_ptr<Exercise> exercise; ///< null before the first start
    Course course;                      ///< of the exercise that was started last
    StudyFile study;
    std::vector<std::int64_t> keys;    ///< of its questions
    std::optional<MistakeRound> round; ///< that decides what is asked; nothing in other orders
    std::string remark;                ///< what is wrong with the study file
    std::int16_t lastQuestion = -1;
    std::int16_t questionIndex = -1;
    std::int16_t shuffleCursor = 0;
    AnswerFlags answerRight{};
    AnswerFlags answerGiven{};
    bool questionLive = false; ///< false while a question is being put up
};

} // namespace tarnel
