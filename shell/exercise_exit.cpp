#include "shell/exercise_exit.h"

#include <algorithm>

namespace tarnel {

namespace {

/// A question counts when the next one is asked for.
bool isBegun(const ExercisePanel& panel) {
    return std::ranges::any_of(panel.rows, [](const std::unique_ptr<AnswerRow>& row) {
        return row->verdict() != Judgement::notYet ||
               std::ranges::any_of(row->typed(), [](const auto& text) { return !text.empty(); });
    });
}

} // namespace

bool stepOut(QAform& exercises, const ExerciseConduct& conduct, CommandButton& back,
             BoxDesk& boxes) {
    ExercisePanel* panel = conduct.runs() ? exercises.activePanel() : nullptr;
    if (!panel)
        return false;
    if (back.visible() && back.enabled())
        back.click();
    else if (!isBegun(*panel) || boxes.confirm(Text::menuExercises, Text::leaveExerciseQuestion))
        panel->cancelButton.click();
    return true;
}

} // namespace tarnel
