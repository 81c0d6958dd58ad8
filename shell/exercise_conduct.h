#pragma once

#include "engine/user_control_2.h"
#include "exercises/qa_form.h"
#include "exercises/question_cover.h"
#include "panel/panel_coupling.h"
#include "shell/box_desk.h"
#include "shell/chart_display.h"
#include "shell/exercise_menu.h"
#include "shell/flight_switch.h"
#include "shell/practice_desk.h"
#include "shell/replay_deck.h"

#include <functional>
#include <string>

namespace tarnel {

/// What an exercise takes over while it runs.
struct ExerciseStage {
    UserControl2& sim;
    TrainerControls& strip;
    PanelControls& panel;
    PanelCoupling& coupling;
    ReplayDeck& replay;
    FlightSwitch& flight;
    ChartDisplay& display;
    PracticeDesk& practice;
    BoxDesk& boxes;
};

/// `ExerciseConduct`: carries out what an exercise asks of the trainer, and keeps from sight what
/// would answer a question that stands open.
class ExerciseConduct {
  public:
    ExerciseConduct(QAform& exercises, const ExerciseStage& trainerStage);

    /// Starts an exercise of that course.
    void start(const ExerciseItem& item, const Course& course,
               QAform::Order order = QAform::Order::usual);

    [[nodiscard]] bool runs() const { return question != Question::none; }
    /// While a question stands open: its answer must not be found by other means.
    [[nodiscard]] bool questionOpen() const { return question == Question::open; }
    [[nodiscard]] bool solutionShown() const { return question == Question::solved; }
    /// Whether the student may start the aircraft.
    [[nodiscard]] bool mayFly() const;
    /// Whether he flies the question that is up, or has flown it.
    [[nodiscard]] bool studentFlies() const { return form.c_QAFly > 0; }
    /// Whether he has flown it, and his flight is in memory.
    [[nodiscard]] bool studentHasFlown() const {
        return studentFlies() && question == Question::flown;
    }
    /// Whether something is asked that has not been answered, or could still be.
    [[nodiscard]] bool awaitsAnswer() const;
    /// Takes the student's aircraft to the question's first sample again.
    void flyAgain();
    /// What the open question keeps from sight; nothing if none is open.
    [[nodiscard]] QuestionCover cover() const;
    /// A flight starts: in an exercise the recording is the student's own from now on.
    void flightStarts();

    // Steps of the tick.
    void followFlight();
    void follow();
    void coverReadings();

    std::function<void()> changed; ///< what may be used
    std::function<void()> onLeave; ///< the exercise has been left, and another one may start

  private:
    enum class Question { none, open, flown, solved };

    void leave();
    void endFlight();
    void rememberTrainer();
    void restoreTrainer();
    void frame();
    void showSolution();
    void showNext();
    void hide();
    void letStudentFly();
    void loadSession();
    void switchFaces();
    void tellWind();

    QAform& form;
    ExerciseStage stage;
    Question question = Question::none; ///< the one that is up
    struct {
        OptionButton* rate = nullptr;
        int trace = 1;
        int inst2Type = 0;
        int inst3Type = 0;
        bool inst2Large = false;
        bool inst3Large = false;
        int radialShown = 0;
    } before; ///< the exercise
};

} // namespace tarnel
