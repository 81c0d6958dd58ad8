#include "window/quiz/quiz_row.h"

#include "window/quiz/quiz_option.h"
#include "window/quiz/quiz_prompt.h"
#include "window/quiz/quiz_verdict.h"
#include "window/widgets/quiz_list.h"
#include "window/widgets/quiz_measures.h"
#include "window/widgets/spoken.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

#include <algorithm>

namespace tarnel {

namespace {

QString plain(const std::string& text) {
    return QString::fromStdString(text);
}

void setRetained(QWidget& widget, bool retained) {
    QSizePolicy policy = widget.sizePolicy();
    policy.setRetainSizeWhenHidden(retained);
    widget.setSizePolicy(policy);
}

} // namespace

QuizRow::QuizRow(int number, AnswerRow& row, const StringTable& table, FormBinding& binding,
                 QGridLayout& grid)
    : QObject(grid.parentWidget()), answerRow(row), texts(table) {
    QWidget& frame = *grid.parentWidget();
    numberLabel = new QLabel(QString::number(number), &frame);
    numberLabel->setProperty("secondary", true);
    prompt = new QuizPrompt(&frame);
    prompt->setObjectName(nameOf(row.prompt));
    const int line = number - 1;
    grid.addWidget(numberLabel, line, 0);
    grid.addWidget(prompt, line, 1);
    grid.addLayout(makeAnswers(binding, frame), line, 2);
    grid.addLayout(makeVerdicts(frame), line, 2);
}

QHBoxLayout* QuizRow::makeAnswers(FormBinding& binding, QWidget& frame) {
    makeEntries(binding, frame);
    makeOptions(binding, frame);
    makeList(binding, frame);
    auto* line = new QHBoxLayout;
    line->setSpacing(quiz::answerGap);
    for (QWidget* widget : answers)
        line->addWidget(widget);
    if (list)
        line->addStretch();
    return line;
}

void QuizRow::makeEntries(FormBinding& binding, QWidget& frame) {
    for (const auto& entry : answerRow.entries) {
        auto* field = new QLineEdit(&frame);
        field->setProperty("quiz", true);
        field->setAlignment(Qt::AlignRight);
        binding.bind(entry->field, *field);
        fields.push_back(field);
        auto* unit = new QLabel(&frame);
        unit->setProperty("secondary", true);
        unit->setProperty("unit", true);
        unit->setObjectName(nameOf(entry->unit));
        if (entry->unit.caption())
            unit->setText(textOf(texts, *entry->unit.caption()));
        binding.follow([&shown = entry->unit, unit] { unit->setVisible(shown.visible()); });
        units.push_back(unit);
        answers.insert(answers.end(), {field, unit});
    }
}

/// There is one attempt, so arrow keys only go from option to option: none is ever the chosen one
/// while the row can be answered.
void QuizRow::makeOptions(FormBinding& binding, QWidget& frame) {
    auto* group = new QButtonGroup(this);
    int digit = 0;
    for (const auto& option : answerRow.options) {
        auto* button = new QuizOption(++digit, &frame);
        binding.bind(*option, *button);
        group->addButton(button);
        options.push_back(button);
        answers.push_back(button);
    }
}

void QuizRow::makeList(FormBinding& binding, QWidget& frame) {
    if (!answerRow.list)
        return;
    list = new QuizList(&frame);
    list->leaveRoomBehind(textOf(texts, Text::answerRight));
    binding.bind(*answerRow.list, *list);
    answers.push_back(list);
}

/// The student's own answer has the room that the verdict leaves it.
QHBoxLayout* QuizRow::makeVerdicts(QWidget& frame) {
    verdict = new QuizVerdict(&frame);
    verdict->setObjectName(nameOf(answerRow.answer));
    own = new QuizVerdict(&frame);
    own->setObjectName(QStringLiteral("Own_") + nameOf(answerRow.answer));
    auto* line = new QHBoxLayout;
    line->setSpacing(quiz::answerGap);
    line->addWidget(verdict);
    line->addWidget(own, 1);
    line->addStretch();
    return line;
}

bool QuizRow::has(const QWidget* widget) const {
    return std::ranges::find(answers, widget) != answers.end();
}

/// A row keeps the room of its answers once it has its verdict, so that no other row moves.
void QuizRow::follow(bool compact) {
    // A lone question mark would look lost in a line of its own.
    prompt->tell(promptText().replace(QStringLiteral(" ?"), QStringLiteral("\u00A0?")),
                 answerRow.state() == RowState::shut);
    for (QWidget* part : {static_cast<QWidget*>(numberLabel), static_cast<QWidget*>(prompt)})
        part->setVisible(asked());
    for (QWidget* answer : answers)
        setRetained(*answer, asked() && !compact);
    verdict->setCompact(compact);
    own->setCompact(compact);
    tellVerdict();
    tellOwnAnswer();
    nameAnswers();
}

/// What stands in the place of the answers.
void QuizRow::tellVerdict() {
    using Kind = QuizVerdict::Kind;
    const RowState state = answerRow.state();
    const QString answer = plain(answerRow.answer.text());
    const QString rightWord = textOf(texts, Text::answerRight);
    const bool isRight = answerRow.verdict() == Judgement::right;
    verdict->setVisible(asked() && !open());
    if (state == RowState::shut)
        verdict->tell(Kind::shut, textOf(texts, Text::rowShut), {});
    else if (state == RowState::revealed && isRight)
        verdict->tell(Kind::rightSolution, answer, rightWord);
    else if (state == RowState::revealed)
        verdict->tell(Kind::solution, answer, {});
    else if (isRight)
        verdict->tell(Kind::right, answer, rightWord);
    else
        verdict->tell(Kind::wrong, givenText(), textOf(texts, Text::answerWrong));
    setSpokenName(*verdict, promptText() + QLatin1Char(' ') + verdict->toolTip());
}

/// A wrong answer stays beside the solution.
void QuizRow::tellOwnAnswer() {
    own->setVisible(answerRow.state() == RowState::revealed &&
                    answerRow.verdict() == Judgement::wrong);
    own->tell(QuizVerdict::Kind::wrong, givenText(), textOf(texts, Text::ownAnswer));
    setSpokenName(*own, textOf(texts, Text::answerWrong) + QStringLiteral(": ") + own->toolTip());
}

/// A blank entry can be picked too.
QString QuizRow::givenText() const {
    const QString given = plain(answerRow.given()).trimmed();
    return given.isEmpty() ? QStringLiteral("\u2013") : given;
}

/// Each answer is told with its question.
void QuizRow::nameAnswers() {
    const QString asked = promptText();
    for (std::size_t i = 0; i < fields.size(); ++i)
        setSpokenName(*fields[i], asked + QLatin1Char(' ') + units[i]->text());
    for (std::size_t i = 0; i < options.size(); ++i)
        setSpokenName(*options[i], asked + QLatin1Char(' ') + plain(answerRow.options[i]->text()));
    if (list)
        setSpokenName(*list, asked);
}

QString QuizRow::promptText() const {
    return plain(answerRow.prompt.text());
}

QWidget* QuizRow::firstAnswer() const {
    if (!fields.empty())
        return fields.front();
    if (list)
        return list;
    return options.front();
}

void QuizRow::type(const QString& digit) {
    if (list) {
        list->setFocus(Qt::ShortcutFocusReason);
        list->type(digit);
        return;
    }
    const int number = digit.toInt();
    if (number >= 1 && number <= static_cast<int>(options.size()))
        options[static_cast<std::size_t>(number - 1)]->click();
}

void QuizRow::goOnFrom(QWidget* field) {
    const auto here = std::ranges::find(fields, field);
    if (here != fields.end() && here + 1 != fields.end())
        (*(here + 1))->setFocus(Qt::TabFocusReason);
    else if (options.size() == 1)
        options.front()->click();
    else
        options.front()->setFocus(Qt::TabFocusReason);
}

/// Verdicts leave half of the row.
int QuizRow::compactHeightFor(int width) const {
    const int least = qRound(quiz::compactHeight * quiz::scaleOf(*prompt));
    return std::max(least, prompt->heightForWidth(width / 2));
}

} // namespace tarnel
