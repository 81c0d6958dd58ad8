#include "window/quiz/quiz_row.h"

#include "window/quiz/quiz_option.h"
#include "window/quiz/quiz_verdict.h"
#include "window/widgets/quiz_list.h"
#include "window/widgets/quiz_measures.h"

#include <QLabel>
#include <QLineEdit>
#include <QStyle>

#include <algorithm>

namespace tarnel {

namespace {

// In pixels at text scale 1.
constexpr int numberWidth = 18;
constexpr int columnGap = 10;
constexpr int fieldWidth = 52;
constexpr int unitWidth = 26;
constexpr int unitGap = 4;
constexpr int widestChoice = 120;

QString plain(const std::string& text) {
    return QString::fromStdString(text);
}

} // namespace

QuizRow::QuizRow(int number, AnswerRow& row, const StringTable& table, FormBinding& binding,
                 QWidget* parent)
    : QWidget(parent), answerRow(row), texts(table) {
    numberLabel = new QLabel(QString::number(number), this);
    numberLabel->setProperty("secondary", true);
    prompt = new QLabel(this);
    prompt->setWordWrap(true);
    prompt->setTextFormat(Qt::PlainText);
    prompt->setObjectName(nameOf(row.prompt));
    makeEntries(binding);
    makeOptions(binding);
    makeList(binding);
    verdict = new QuizVerdict(this);
    verdict->setObjectName(nameOf(row.answer));
    own = new QuizVerdict(this);
    own->setObjectName(QStringLiteral("Own_") + nameOf(row.answer));
}

void QuizRow::makeEntries(FormBinding& binding) {
    for (const auto& entry : answerRow.entries) {
        auto* field = new QLineEdit(this);
        field->setProperty("quiz", true);
        field->setAlignment(Qt::AlignRight);
        binding.bind(entry->field, *field);
        fields.push_back(field);
        auto* unit = new QLabel(this);
        unit->setProperty("secondary", true);
        unit->setObjectName(nameOf(entry->unit));
        if (entry->unit.caption())
            unit->setText(textOf(texts, *entry->unit.caption()));
        binding.follow([&shown = entry->unit, unit] { unit->setVisible(shown.visible()); });
        units.push_back(unit);
    }
}

void QuizRow::makeOptions(FormBinding& binding) {
    int digit = 0;
    for (const auto& option : answerRow.options) {
        options.push_back(new QuizOption(++digit, this));
        binding.bind(*option, *options.back());
    }
}

void QuizRow::makeList(FormBinding& binding) {
    if (!answerRow.list)
        return;
    list = new QuizList(this);
    binding.bind(*answerRow.list, *list);
}

void QuizRow::follow() {
    // A lone question mark would look lost in a line of its own.
    prompt->setText(promptText().replace(QStringLiteral(" ?"), QStringLiteral("\u00A0?")));
    prompt->setProperty("shut", answerRow.state() == RowState::shut);
    prompt->style()->polish(prompt);
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
    const bool isRight = answerRow.verdict() == Verdict::right;
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
    verdict->setAccessibleName(promptText() + QLatin1Char(' ') + verdict->toolTip());
}

/// A wrong answer stays beside the solution.
void QuizRow::tellOwnAnswer() {
    own->setVisible(answerRow.state() == RowState::revealed &&
                    answerRow.verdict() == Verdict::wrong);
    own->tell(QuizVerdict::Kind::wrong, givenText(), textOf(texts, Text::ownAnswer));
    own->setAccessibleName(textOf(texts, Text::answerWrong) + QStringLiteral(": ") +
                           own->toolTip());
}

/// A blank entry can be picked too.
QString QuizRow::givenText() const {
    const QString given = plain(answerRow.given()).trimmed();
    return given.isEmpty() ? QStringLiteral("\u2013") : given;
}

void QuizRow::setCompact(bool small) {
    compact = small;
    verdict->setCompact(small);
    own->setCompact(small);
}

/// Each answer is told with its question.
void QuizRow::nameAnswers() {
    const QString asked = promptText();
    for (std::size_t i = 0; i < fields.size(); ++i)
        fields[i]->setAccessibleName(asked + QLatin1Char(' ') + units[i]->text());
    for (std::size_t i = 0; i < options.size(); ++i)
        options[i]->setAccessibleName(asked + QLatin1Char(' ') +
                                      plain(answerRow.options[i]->text()));
    if (list)
        list->setAccessibleName(asked);
}

QString QuizRow::content() const {
    if (!asked())
        return {};
    QStringList parts{promptText()};
    parts << QString::number(static_cast<int>(answerRow.state()));
    if (!open()) {
        parts << plain(answerRow.answer.text()) << plain(answerRow.given());
        return parts.join(QLatin1Char('\n'));
    }
    for (const auto& option : answerRow.options)
        parts << plain(option->text());
    if (list)
        for (const std::string& entry : answerRow.list->entries())
            parts << plain(entry);
    return parts.join(QLatin1Char('\n'));
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

int QuizRow::scaled(int pixels) const {
    return qRound(pixels * quiz::scaleOf(*this));
}

int QuizRow::promptWidth() const {
    prompt->ensurePolished();
    return prompt->fontMetrics().horizontalAdvance(prompt->text()) + scaled(numberWidth + 2);
}

int QuizRow::entriesWidth() const {
    const int each = scaled(fieldWidth) + scaled(unitGap) + scaled(unitWidth);
    return each * static_cast<int>(fields.size());
}

int QuizRow::widestOption() const {
    int widest = 0;
    for (const QuizOption* option : options)
        widest = std::max(widest, option->tightWidth());
    return widest;
}

/// Its entries have room there too once they are told to be right.
int QuizRow::listWidth() const {
    int width = list->sizeHint().width();
    const QString right = textOf(texts, Text::answerRight);
    for (int i = 1; i < list->count(); ++i)
        width = std::max(width, verdict->widthFor(list->itemText(i), right));
    return width;
}

/// Of the verdict and, where it stands beside, the student's own answer.
int QuizRow::verdictsWidth() const {
    const int beside = own->isHidden() ? 0 : own->sizeHint().width() + scaled(quiz::answerGap);
    return verdict->sizeHint().width() + beside;
}

/// Of what the row is answered with, each option as wide as `optionWidth` says.
int QuizRow::widgetsWidth(int (QuizOption::*optionWidth)() const) const {
    if (list)
        return listWidth();
    int width = entriesWidth();
    for (const QuizOption* option : options)
        width += (option->*optionWidth)();
    return width + scaled(quiz::answerGap) * static_cast<int>(options.size() - 1);
}

/// A row keeps the room of its answers once it has its verdict, so that no other row moves.
int QuizRow::roomFor(int widgets) const {
    const int verdicts = open() ? 0 : verdictsWidth();
    return compact ? verdicts : std::max(widgets, verdicts);
}

int QuizRow::answersWidth() const {
    return roomFor(widgetsWidth(&QuizOption::lineWidth));
}

int QuizRow::brokenAnswersWidth() const {
    return roomFor(widgetsWidth(&QuizOption::brokenWidth));
}

/// A prompt keeps its part of the row beside the longest verdicts.
int QuizRow::promptPart(int width, int wanted) const {
    const int least = compact ? qRound(quiz::leastPromptShare * width) : 0;
    return std::min(wanted, std::max(least, width - brokenAnswersWidth() - scaled(columnGap)));
}

int QuizRow::rowHeight() const {
    return scaled(compact ? quiz::compactHeight : quiz::answerHeight);
}

int QuizRow::heightFor(int width, int wanted) const {
    const int forText = promptPart(width, wanted) - scaled(numberWidth);
    return std::max(rowHeight(), prompt->heightForWidth(forText));
}

/// Verdicts leave half of the row.
int QuizRow::compactHeightFor(int width) const {
    const int forText = width / 2 - scaled(numberWidth);
    return std::max(scaled(quiz::compactHeight), prompt->heightForWidth(forText));
}

void QuizRow::layOut(const QRect& place, int wanted) {
    setGeometry(place);
    const int number = scaled(numberWidth);
    const int forPrompt = promptPart(width(), wanted);
    numberLabel->setGeometry(0, 0, number, height());
    prompt->setGeometry(number, 0, forPrompt - number, height());
    const int left = forPrompt + scaled(columnGap);
    layOutAnswers(left, width() - left);
    int x = left;
    for (QuizVerdict* each : {verdict, own}) {
        const QSize wish = each->sizeHint();
        each->setGeometry(x, (height() - wish.height()) / 2,
                          std::min(wish.width(), std::max(0, width() - x)), wish.height());
        x = each->geometry().right() + 1 + scaled(quiz::answerGap);
    }
}

void QuizRow::layOutAnswers(int left, int width) {
    const int tall = scaled(quiz::answerHeight);
    const int top = (height() - tall) / 2;
    if (list)
        list->setGeometry(left, top, std::min(listWidth(), width), tall);
    int x = left;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        fields[i]->setGeometry(x, top, scaled(fieldWidth), tall);
        x += scaled(fieldWidth) + scaled(unitGap);
        units[i]->setGeometry(x, top, scaled(unitWidth), tall);
        x += scaled(unitWidth);
    }
    layOutOptions(x, left + width - x);
}

/// All options have the same width if that can be; else each has what it needs, in two lines if
/// one line is too long for all, and its share of what is left.
void QuizRow::layOutOptions(int left, int width) {
    if (options.empty())
        return;
    const int count = static_cast<int>(options.size());
    const int gap = scaled(quiz::answerGap);
    const int widest = widestOption();
    const int each =
        std::min((width - gap * (count - 1)) / count, std::max(scaled(widestChoice), widest));
    const int lineRoom = widgetsWidth(&QuizOption::lineWidth) - entriesWidth();
    const bool inLine = lineRoom <= width;
    const int needed = inLine ? lineRoom : widgetsWidth(&QuizOption::brokenWidth) - entriesWidth();
    const int share = std::clamp((width - needed) / count, 0, gap);
    const int tall = scaled(quiz::answerHeight);
    for (QuizOption* option : options) {
        const int wanted = (inLine ? option->lineWidth() : option->brokenWidth()) + share;
        const int wide = each >= widest ? each : wanted;
        option->setGeometry(left, (height() - tall) / 2, wide, tall);
        left += wide + gap;
    }
}

} // namespace tarnel
