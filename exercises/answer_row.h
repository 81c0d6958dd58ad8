#pragma once

#include "controls/colour_label.h"
#include "controls/text_field.h"
#include "controls/text_list.h"
#include "controls/text_option.h"
#include "exercises/panel_widgets.h"

#include <memory>

namespace tarnel {

// The colours of prompts and answers.
constexpr LabelColours restingColours{0xFFFFFF, 0x806000};
constexpr LabelColours rightColours{0x00FF00, 0x806000};
constexpr LabelColours wrongColours{0xFFFFFF, 0x0000FF};
constexpr LabelColours solutionColours{0xFFFFFF, 0x806000};

/// What became of the one attempt at a sub-question.
enum class Judgement { notYet, right, wrong };

/// Where a sub-question stands.
enum class RowState {
    notAsked, ///< it does not belong to the question
    open,     ///< it can be answered
    shut,     ///< it has not been answered and no longer can be
    judged,   ///< its verdict is shown
    revealed  ///< its solution is shown, whatever the verdict was
};

/// A sub-question on a panel: the prompt, the widgets to answer with, and the answer that takes
/// their place.
class AnswerRow {
  public:
    AnswerRow(FormState& form, const RowWidgets& widgets);

    /// Called with the option's or entry's index when the student answers. An entry 0, which asks
    /// to select, is no answer.
    std::function<void(int)> onPick;

    /// Poses the question anew, with nothing picked or typed. Options beside fields come alive when
    /// something is typed.
    void ask(const std::string& promptText, const std::vector<std::string>& offers);
    /// Shows the verdict in the answer's place. `given` is what the student answered.
    void judge(bool right, const std::string& given, const std::string& answerText);
    /// Takes no answer any more; what it was to be answered with stays, dead.
    void shut();
    /// Shows the solution in the answer's place. The verdict stays.
    void reveal(const std::string& solution);
    /// Shows nothing of the row.
    void hide();

    [[nodiscard]] RowState state() const { return stage; }
    [[nodiscard]] Judgement verdict() const { return judged; }
    /// The student's answer as he picked or typed it; empty before he has given one.
    [[nodiscard]] const std::string& given() const { return ownAnswer; }
    /// What stands in the fields.
    [[nodiscard]] std::vector<std::string> typed() const;
    /// All widgets, in the order of the keyboard.
    [[nodiscard]] std::vector<FormControl*> controls();

    /// A field and its unit.
    struct Entry {
        Entry(FormState& form, const EntryWidgets& widgets)
            : field(form, widgets.field), unit(form, widgets.unitLabel, widgets.unit) {}
        TextField field;
        TextPanel unit;
    };

    ColourLabel prompt;
    ColourLabel answer;
    std::vector<std::unique_ptr<Entry>> entries;
    std::vector<std::unique_ptr<TextOption>> options;
    std::unique_ptr<TextList> list; ///< null in a row of options

  private:
    void setAnswerable(bool answerable);
    void enableOptions(bool enabled);
    void begin(RowState next);
    void enter(RowState next);
    void showAnswer(const std::string& text, const LabelColours& colours);

    FormState& changes;
    OptionGroup group;
    RowState stage = RowState::notAsked;
    Judgement judged = Judgement::notYet;
    std::string ownAnswer;
};

} // namespace tarnel
