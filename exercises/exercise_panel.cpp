#include "exercises/exercise_panel.h"

#include "core/number_text.h"
#include "exercises/val_str.h"

namespace tarnel {

ExercisePanel::ExercisePanel(FormState& form, const PanelWidgets& widgets)
    : state(&form),
      flyCode(widgets.flyCode),
      frame(state, widgets.frame),
      statisticBox(state, widgets.statisticBox, Text::statistics),
      statistic(state, widgets.statistic),
      notice(state, widgets.notice),
      task(state, widgets.task),
      known(state, widgets.known),
      wind(state, "QuestionWind"),
      rule(state, widgets.rule),
      nextButton(state, widgets.next, Text::nextQuestion),
      solutionButton(state, widgets.solution, Text::showSolution),
      flyButton(state, widgets.fly, Text::flyYourself),
      cancelButton(state, widgets.cancel, Text::cancel),
      randomBox(state, widgets.random, Text::randomOrder),
      mistakesBox(state, widgets.mistakes, Text::mistakesOrder) {
    for (const RowWidgets& row : widgets.rows)
        rows.push_back(std::make_unique<AnswerRow>(state, row));
    frame.setVisible(false);
    frame.setHeight(panelHeight);
    task.setColours(restingColours);
    notice.setColours(restingColours);
    notice.setVisible(false);
    for (FormControl* control : controls())
        if (control->name().empty())
            control->setVisible(false);
    const auto replaces = [](CheckBox& box, CheckBox& other) {
        box.onClick = [&] {
            if (box.value() == 1)
                other.set(0);
        };
    };
    replaces(randomBox, mistakesBox);
    replaces(mistakesBox, randomBox);
}

void ExercisePanel::fold(bool folds) {
    small = folds;
    frame.setHeight(small ? foldedPanelHeight : panelHeight);
}

void ExercisePanel::setTitle(const std::string& exerciseName) {
    name = exerciseName;
    shownPlace = {};
    frame.setText(name);
}

void ExercisePanel::setPlace(QuestionPlace questionPlace, std::string_view of) {
    shownPlace = questionPlace;
    frame.setText(name + " (" + Str(shownPlace.number) + " " + std::string(of) + " " +
                  numberText(std::int64_t{shownPlace.count}) + ")");
}

void ExercisePanel::ask(const Exercise& exercise) {
    task.setText(exercise.task());
    known.setText(exercise.known());
    wind.setText({});
    rule.setText(exercise.rule());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const int row = static_cast<int>(i);
        if (row < exercise.rowCount())
            rows[i]->ask(exercise.prompt(row), exercise.offers(row));
        else
            rows[i]->hide();
    }
    setAnswerable(true);
}

void ExercisePanel::reveal(const Exercise& exercise) {
    for (int row = 0; row < exercise.rowCount(); ++row)
        rows[static_cast<std::size_t>(row)]->reveal(exercise.solution(row));
}

void ExercisePanel::clear() {
    questions.note();
    for (TextPanel* text : std::initializer_list<TextPanel*>{&task, &known, &wind, &rule})
        text->setText({});
    statistic.setText({});
    for (const auto& row : rows)
        row->hide();
    setAnswerable(false);
}

void ExercisePanel::setNotice(const std::string& message) {
    notice.setText(message);
    notice.setVisible(!message.empty());
}

void ExercisePanel::setAnswerable(bool answerable) {
    for (CommandButton* button : {&solutionButton, &flyButton}) {
        button->setEnabled(answerable);
        button->setVisible(answerable && !button->name().empty());
    }
}

std::vector<FormControl*> ExercisePanel::controls() {
    std::vector<FormControl*> all = {&frame, &statisticBox, &statistic, &notice,
                                     &task,  &known,        &wind,      &rule};
    for (const auto& row : rows) {
        const std::vector<FormControl*> widgets = row->controls();
        all.insert(all.end(), widgets.begin(), widgets.end());
    }
    all.insert(all.end(),
               {&solutionButton, &flyButton, &nextButton, &cancelButton, &randomBox, &mistakesBox});
    return all;
}

} // namespace tarnel
