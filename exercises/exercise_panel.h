#pragma once

#include "controls/form_frame.h"
#include "core/change_count.h"
#include "exercises/answer_row.h"
#include "exercises/exercise.h"

namespace tarnel {

/// The height of a panel in twips.
constexpr std::int16_t panelHeight = 4250;
constexpr std::int16_t foldedPanelHeight = 1100;

/// Which question of how many is up, counted from 1; 0 of 0 if none is.
struct QuestionPlace {
    int number = 0;
    int count = 0;
    bool operator==(const QuestionPlace&) const = default;
};

/// One of the five frames: title, statistic, task, sub-questions and buttons. What it asks comes
/// from an `Exercise`. A widget that the frame lacks stays invisible.
class ExercisePanel {
  public:
    ExercisePanel(FormState& form, const PanelWidgets& widgets);

    /// Titles the frame with the exercise's name, and then with the place of the question too.
    void setTitle(const std::string& exerciseName);
    void setPlace(QuestionPlace questionPlace, std::string_view of);
    /// Poses the question that `exercise` has taken. Rows that it does not have are hidden.
    void ask(const Exercise& exercise);
    /// Shows the solution of every sub-question.
    void reveal(const Exercise& exercise);
    /// Shows no question; it can only be passed or left.
    void clear();
    /// Folds the frame to its small height, or unfolds it.
    void fold(bool folds);
    /// Tells `message` in place of a question or above it; nothing if it is empty.
    void setNotice(const std::string& message);

    [[nodiscard]] const std::string& title() const { return name; }
    [[nodiscard]] QuestionPlace place() const { return shownPlace; }
    /// A number that each question put up, or taken away, has for itself.
    [[nodiscard]] std::uint64_t question() const { return questions.value(); }
    [[nodiscard]] bool folded() const { return small; }
    /// Whether the panel folds to its small height when the student watches or flies.
    [[nodiscard]] bool folds() const { return flyCode != 0; }
    /// All widgets, in the order of the keyboard.
    [[nodiscard]] std::vector<FormControl*> controls();

    FormState state;            ///< of all that follows, rows included
    const std::int16_t flyCode; ///< `c_QAFly` while the panel's question is flown; 0 never
    FormFrame frame;
    FormFrame statisticBox;
    TextPanel statistic;
    ColourLabel notice; ///< what is wrong with the study file, in place of a question or above it
    ColourLabel task;
    TextPanel known; ///< what is known besides the task
    TextPanel wind;  ///< that the question is flown with, where it asks for other things
    TextPanel rule;  ///< of answering, where one must be known beforehand
    std::vector<std::unique_ptr<AnswerRow>> rows;
    CommandButton nextButton;
    CommandButton solutionButton;
    CommandButton flyButton;
    CommandButton cancelButton;
    CheckBox randomBox;
    CheckBox mistakesBox; ///< an order as the random one is; one goes out with the other

  private:
    void setAnswerable(bool answerable);

    std::string name;
    QuestionPlace shownPlace;
    ChangeCount questions;
    bool small = false;
};

} // namespace tarnel
