#include "exercises/answer_row.h"

namespace tarnel {

AnswerRow::AnswerRow(FormState& form, const RowWidgets& widgets)
    : prompt(form, widgets.prompt), answer(form, widgets.answer), changes(form) {
    for (const EntryWidgets& entry : widgets.entries) {
        entries.push_back(std::make_unique<Entry>(form, entry));
        entries.back()->field.onChange = [this] { enableOptions(true); };
    }
    for (std::size_t i = 0; i < widgets.options.size(); ++i) {
        options.push_back(std::make_unique<TextOption>(form, group, widgets.options[i]));
        options.back()->onClick = [this, i] { onPick(static_cast<int>(i)); };
    }
    if (widgets.list.empty())
        return;
    list = std::make_unique<TextList>(form, widgets.list);
    list->onPick = [this] {
        const bool isEntry =
            list->index() > 0 && static_cast<std::size_t>(list->index()) < list->entries().size();
        if (isEntry)
            onPick(list->index());
    };
}

void AnswerRow::ask(const std::string& promptText, const std::vector<std::string>& offers) {
    begin(RowState::open);
    prompt.setText(promptText);
    prompt.setColours(restingColours);
    prompt.setVisible(true);
    answer.setText({});
    answer.setColours(restingColours);
    answer.setVisible(false);
    for (const auto& entry : entries) {
        entry->field.setEnabled(true);
        entry->field.setText({});
    }
    for (std::size_t i = 0; i < options.size(); ++i)
        options[i]->setText(offers[i]);
    if (list) {
        list->setEntries(offers);
        list->select(0);
    }
    enableOptions(entries.empty());
    setAnswerable(true);
}

void AnswerRow::begin(RowState next) {
    enter(next);
    judged = Judgement::notYet;
    ownAnswer.clear();
}

/// What a row shows follows from its state, so each new one counts as a change of the form.
void AnswerRow::enter(RowState next) {
    if (stage == next)
        return;
    stage = next;
    changes.touch();
}

void AnswerRow::judge(bool right, const std::string& given, const std::string& answerText) {
    enter(RowState::judged);
    judged = right ? Judgement::right : Judgement::wrong;
    ownAnswer = given;
    showAnswer(answerText, right ? rightColours : wrongColours);
}

void AnswerRow::shut() {
    enter(RowState::shut);
    for (const auto& entry : entries)
        entry->field.setEnabled(false);
    enableOptions(false);
}

void AnswerRow::reveal(const std::string& solution) {
    enter(RowState::revealed);
    showAnswer(solution, solutionColours);
}

void AnswerRow::showAnswer(const std::string& text, const LabelColours& colours) {
    prompt.setColours(colours);
    answer.setColours(colours);
    answer.setText(text);
    answer.setVisible(true);
    setAnswerable(false);
}

void AnswerRow::hide() {
    begin(RowState::notAsked);
    prompt.setVisible(false);
    answer.setVisible(false);
    setAnswerable(false);
}

/// Shows or hides what the student answers with. Nothing stays picked.
void AnswerRow::setAnswerable(bool answerable) {
    for (const auto& entry : entries) {
        entry->field.setVisible(answerable);
        entry->unit.setVisible(answerable);
    }
    for (const auto& option : options) {
        option->clear();
        option->setVisible(answerable);
    }
    if (list)
        list->setVisible(answerable);
}

void AnswerRow::enableOptions(bool enabled) {
    for (const auto& option : options)
        option->setEnabled(enabled);
}

std::vector<std::string> AnswerRow::typed() const {
    std::vector<std::string> texts;
    for (const auto& entry : entries)
        texts.push_back(entry->field.text());
    return texts;
}

std::vector<FormControl*> AnswerRow::controls() {
    std::vector<FormControl*> all = {&prompt};
    for (const auto& entry : entries)
        all.insert(all.end(), {&entry->field, &entry->unit});
    for (const auto& option : options)
        all.push_back(option.get());
    if (list)
        all.push_back(list.get());
    all.push_back(&answer);
    return all;
}

} // namespace tarnel
