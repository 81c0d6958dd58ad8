#include "window/quiz_row.h"

#include "window/quiz_list.h"
#include "window/quiz_measures.h"
#include "window/quiz_option.h"
#include "window/quiz_verdict.h"

#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>

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
    const std::string_view name = row.prompt.name();
    prompt->setObjectName(QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size())));
    makeEntries(binding);
    makeOptions(binding);
    makeList(binding);
    verdict = new QuizVerdict(this);
    binding.bind(row.answer, *verdict);
    binding.follow([this] { follow(); });
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
        binding.bind(entry->unit, *unit);
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
    for (std::size_t i = 0; i < units.size(); ++i)
        units[i]->setText(textOf(texts, *answerRow.entries[i]->unit.caption()));
    // A lone question mark would look lost in a line of its own.
    prompt->setText(promptText().replace(QStringLiteral(" ?"), QStringLiteral("\u00A0?")));
    verdict->tell(answerRow.verdict(), revealed(), plain(answerRow.answer.text()), verdictWord());
    verdict->setAccessibleName(spokenVerdict());
    nameAnswers();
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

/// The word for the verdict, unless the answer says it.
QString QuizRow::verdictWord() const {
    if (answerRow.verdict() == Verdict::right)
        return textOf(texts, Text::answerRight);
    const QString wrong = textOf(texts, Text::answerWrong);
    const bool toTell = answerRow.verdict() == Verdict::wrong;
    return toTell && plain(answerRow.answer.text()) != wrong ? wrong : QString();
}

QString QuizRow::summary() const {
    return promptText() + QLatin1Char(' ') + plain(answerRow.answer.text());
}

bool QuizRow::revealed() const {
    return answerRow.answer.visible() && answerRow.answer.colours() == solutionColours;
}

QString QuizRow::promptText() const {
    return plain(answerRow.prompt.text());
}

QString QuizRow::spokenVerdict() const {
    const QString word = verdictWord();
    return word.isEmpty() ? summary() : summary() + QStringLiteral(", ") + word;
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
        widest = std::max(widest, option->lineWidth());
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

int QuizRow::answersWidth() const {
    if (list)
        return listWidth();
    int width = entriesWidth();
    for (const QuizOption* option : options)
        width += option->lineWidth();
    return width + scaled(quiz::answerGap) * static_cast<int>(options.size() - 1);
}

int QuizRow::brokenAnswersWidth() const {
    int width = answersWidth();
    for (const QuizOption* option : options)
        width += option->brokenWidth() - option->lineWidth();
    return width;
}

int QuizRow::promptPart(int width, int wanted) const {
    return std::min(wanted, width - brokenAnswersWidth() - scaled(columnGap));
}

int QuizRow::heightFor(int width, int wanted) const {
    const int forText = promptPart(width, wanted) - scaled(numberWidth);
    return std::max(scaled(quiz::answerHeight), prompt->heightForWidth(forText));
}

void QuizRow::layOut(const QRect& place, int wanted) {
    setGeometry(place);
    const int number = scaled(numberWidth);
    const int forPrompt = promptPart(width(), wanted);
    numberLabel->setGeometry(0, 0, number, height());
    prompt->setGeometry(number, 0, forPrompt - number, height());
    const int left = forPrompt + scaled(columnGap);
    layOutAnswers(left, width() - left);
    const QSize wish = verdict->sizeHint();
    verdict->setGeometry(left, (height() - wish.height()) / 2,
                         std::min(wish.width(), width() - left), wish.height());
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

/// All options have the same width if that can be; else as many as can stand in one line.
void QuizRow::layOutOptions(int left, int width) {
    if (options.empty())
        return;
    const int count = static_cast<int>(options.size());
    const int gap = scaled(quiz::answerGap);
    int free = width - gap * (count - 1);
    const int each = std::min(free / count, scaled(widestChoice));
    const bool alike = each >= widestOption();
    for (const QuizOption* option : options)
        free -= option->brokenWidth();
    const int tall = scaled(quiz::answerHeight);
    for (QuizOption* option : options) {
        const int more = option->lineWidth() - option->brokenWidth();
        const bool inLine = more <= free;
        if (inLine)
            free -= more;
        const int own = inLine ? option->lineWidth() : option->brokenWidth();
        const int wide = alike ? each : own;
        option->setGeometry(left, (height() - tall) / 2, wide, tall);
        left += wide + gap;
    }
}

} // namespace tarnel
