#include "window/quiz/quiz_frame.h"

#include "look/look.h"
#include "window/quiz/quiz_flight_bar.h"
#include "window/quiz/quiz_row.h"
#include "window/widgets/quiz_measures.h"
#include "window/widgets/spoken.h"
#include "window/widgets/wrap_layout.h"

#include <QCheckBox>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

#include <algorithm>

namespace tarnel {

namespace {

constexpr int frameInset = 10;
constexpr int framePartGap = 5;
constexpr int lineGap = 2; ///< above the line below the header
constexpr int buttonGap = 8;
constexpr int titleGap = 6;
constexpr int statisticGap = 16;
constexpr int columnGap = 10;

/// A layout notices what has changed below it when the event loop comes by; this asks at once.
void settle(QWidget& widget) {
    for (auto* part : widget.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
        if (part->layout() && !part->isHidden())
            settle(*part);
    if (widget.layout())
        widget.layout()->activate();
}

} // namespace

QuizFrame::QuizFrame(ExercisePanel& panel, const StringTable& table, FormBinding& binding,
                     QWidget* parent)
    : QWidget(parent), asked(panel), texts(table) {
    setObjectName(nameOf(panel.frame));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(frameInset, frameInset - 2, frameInset, frameInset);
    column->setSpacing(framePartGap);
    column->addLayout(makeHeader(binding));
    addTexts(*column);
    column->addWidget(questionArea = makeRows(binding), 1);
    column->addLayout(barPlace = new QVBoxLayout, 1);
    barPlace->addStretch(1);
    barPlace->addStretch();
    column->addLayout(makeButtons(binding));
}

QLabel* QuizFrame::label(const char* kind) {
    auto* made = new QLabel(this);
    made->setTextFormat(Qt::PlainText);
    if (kind)
        made->setProperty(kind, true);
    return made;
}

/// Title and statistic in one line, or in two where that is too long.
QVBoxLayout* QuizFrame::makeHeader(FormBinding& binding) {
    title = label("quizTitle");
    place = label("secondary");
    wind = label("secondary");
    wind->setObjectName(nameOf(asked.wind));
    statistic = label("secondary");
    binding.bind(asked.statistic, *statistic);
    random = new QCheckBox(this);
    binding.bind(asked.randomBox, *random);
    mistakes = new QCheckBox(this);
    binding.bind(asked.mistakesBox, *mistakes);
    auto* name = new QHBoxLayout;
    name->setSpacing(titleGap);
    name->addWidget(title);
    name->addWidget(place);
    auto* standing = new QHBoxLayout;
    standing->setSpacing(statisticGap);
    standing->addWidget(statistic);
    standing->addStretch();
    standing->addWidget(random);
    standing->addWidget(mistakes);
    auto* words = new WrapLayout(WrapLayout::Manner::flowing, statisticGap, 0);
    words->addLayout(name);
    words->addWidget(wind);
    words->addLayout(standing);
    auto* line = new QFrame(this);
    line->setProperty("hairline", true);
    auto* header = new QVBoxLayout;
    header->setSpacing(lineGap);
    header->addLayout(words);
    header->addWidget(line);
    return header;
}

/// The rule stands beside what is known, or below it where that is too long.
void QuizFrame::addTexts(QVBoxLayout& column) {
    notice = label("notice");
    notice->setObjectName(nameOf(asked.notice));
    task = label("quizTask");
    task->setObjectName(nameOf(asked.task));
    known = label("quizTask");
    known->setObjectName(nameOf(asked.known));
    rule = label("secondary");
    rule->setObjectName(nameOf(asked.rule));
    for (QLabel* text : {notice, task}) {
        text->setWordWrap(true);
        column.addWidget(text);
    }
    auto* line = new WrapLayout(WrapLayout::Manner::flowing, statisticGap, 1);
    line->addWidget(known);
    line->addWidget(rule);
    column.addLayout(line);
}

/// Prompts get what their longest wants, if the answers keep their room.
QWidget* QuizFrame::makeRows(FormBinding& binding) {
    auto* area = new QWidget(this);
    grid = new QGridLayout(area);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(columnGap);
    grid->setColumnStretch(1, 1);
    int number = 0;
    for (const auto& row : asked.rows)
        questions.push_back(new QuizRow(++number, *row, texts, binding, *grid));
    return area;
}

/// Leaving stands apart at the right, with large texts in a line of its own.
QLayout* QuizFrame::makeButtons(FormBinding& binding) {
    next = button(asked.nextButton, binding);
    solution = button(asked.solutionButton, binding);
    fly = button(asked.flyButton, binding);
    cancel = button(asked.cancelButton, binding);
    auto* line = new WrapLayout(WrapLayout::Manner::flowing, buttonGap, buttonGap);
    for (QPushButton* each : {next, solution, fly})
        line->addWidget(each);
    auto* leaving = new QHBoxLayout;
    leaving->addStretch();
    leaving->addWidget(cancel);
    line->addLayout(leaving);
    return line;
}

QPushButton* QuizFrame::button(CommandButton& control, FormBinding& binding) {
    auto* made = new QPushButton(this);
    made->setProperty("quiz", true);
    binding.bind(control, *made);
    return made;
}

bool QuizFrame::answered() const {
    return std::ranges::none_of(questions, [](const QuizRow* row) { return row->open(); });
}

/// All texts of the question, without the answers.
QString QuizFrame::question() const {
    QStringList parts{QString::fromStdString(asked.frame.text())};
    for (const QLabel* part : {notice, wind, task, known, rule})
        if (!part->text().isEmpty())
            parts << part->text();
    for (const QuizRow* row : questions)
        if (row->asked())
            parts << row->promptText();
    return parts.join(QStringLiteral(". "));
}

void QuizFrame::host(QuizFlightBar* bar) {
    flightBar = bar;
    barPlace->insertWidget(1, bar);
}

QuizRow* QuizFrame::rowOf(QWidget* widget) const {
    for (QuizRow* row : questions)
        if (row->open() && row->has(widget))
            return row;
    return openRowAfter(nullptr);
}

QuizRow* QuizFrame::openRowAfter(const QuizRow* row) const {
    const auto isOpen = [](const QuizRow* each) { return each->open(); };
    const auto from = row ? std::ranges::find(questions, row) : questions.begin();
    const auto found = std::find_if(from, questions.end(), isOpen);
    if (found != questions.end())
        return *found;
    const auto again = std::find_if(questions.begin(), from, isOpen);
    return again == from ? nullptr : *again;
}

void QuizFrame::followTexts() {
    const QuestionPlace at = asked.place();
    title->setText(QString::fromStdString(asked.title()));
    place->setText(at.number > 0 ? textOf(texts, Text::questionPlace).arg(at.number).arg(at.count)
                                 : QString());
    for (const auto& [text, shownBy] :
         std::initializer_list<std::pair<TextPanel*, QLabel*>>{{&asked.notice, notice},
                                                               {&asked.task, task},
                                                               {&asked.known, known},
                                                               {&asked.wind, wind},
                                                               {&asked.rule, rule}}) {
        shownBy->setText(QString::fromStdString(text->text()));
        shownBy->setVisible(text->visible() && !text->text().empty());
    }
    setSpokenName(*this, question());
}

void QuizFrame::followFlight() {
    const bool flies = shown->flown;
    if (flies || shown->watched)
        rule->hide();
    for (QuizRow* row : questions)
        row->follow(shown->watched);
    grid->setVerticalSpacing(shown->watched ? quiz::compactGap : quiz::rowGap);
    questionArea->setVisible(!flies);
    if (flightBar) {
        flightBar->setBrief(false);
        flightBar->setVisible(flies || shown->watched);
        barPlace->setStretch(barPlace->count() - 1, flies ? 1 : 0);
    }
    setNextPrimary(!flies);
}

/// Of a flight, starting is what comes first.
void QuizFrame::setNextPrimary(bool primary) {
    if (next->property("primary").toBool() == primary)
        return;
    next->setProperty("primary", primary);
    next->style()->unpolish(next);
    next->style()->polish(next);
}

bool QuizFrame::follow(bool flies, bool watches) {
    const Shown now{asked.state.revision(), flies, watches && !flies};
    if (now == shown)
        return false;
    shown = now;
    followTexts();
    followFlight();
    settle(*this);
    return true;
}

/// Room for the bar is kept from the beginning, so that nothing moves when it comes: the rows are
/// compact then.
int QuizFrame::wantedHeight(int width) const {
    const int now = layout()->totalHeightForWidth(width);
    if (!flightBar)
        return now;
    return flightBar->isHidden() ? std::max(now, watchedHeight(width, now))
                                 : now + flightBar->sparedHeight();
}

int QuizFrame::watchedHeight(int frameWidth, int heightOfAll) const {
    const int width = frameWidth - 2 * frameInset;
    int rows = 0;
    for (const QuizRow* row : questions)
        if (row->asked())
            rows += row->compactHeightFor(width) + quiz::compactGap;
    return heightOfAll - grid->totalHeightForWidth(width) + rows + framePartGap +
           flightBar->layout()->totalHeightForWidth(width);
}

void QuizFrame::spareRoom() {
    if (!flightBar || !shown)
        return;
    flightBar->setBrief(false);
    settle(*this);
    if (!shown->watched || layout()->totalHeightForWidth(width()) <= height())
        return;
    flightBar->setBrief(true);
    settle(*this);
}

void QuizFrame::resizeEvent(QResizeEvent* /*event*/) {
    spareRoom();
}

void QuizFrame::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(look::colours().accent, 1.5));
    painter.setBrush(look::colours().card);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.75, 0.75, -0.75, -0.75), look::moduleRadius,
                            look::moduleRadius);
}

} // namespace tarnel
