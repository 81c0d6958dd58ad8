#include "window/quiz/quiz_frame.h"

#include "look/look.h"
#include "window/quiz/quiz_flight_bar.h"
#include "window/quiz/quiz_row.h"
#include "window/widgets/quiz_measures.h"
#include "window/widgets/tick_box.h"

#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QStyle>

#include <algorithm>

namespace tarnel {

namespace {

// In pixels at text scale 1.
constexpr int inset = 10;
constexpr int partGap = 5;
constexpr int buttonGap = 8;
constexpr int titleGap = 6;
constexpr int statisticGap = 16;
/// Of a prompt's width, where it stands in two lines.
constexpr double twoLineShare = 0.62;

} // namespace

QuizFrame::QuizFrame(ExercisePanel& panel, const StringTable& table, FormBinding& binding,
                     QWidget* parent)
    : QWidget(parent), asked(panel), texts(table) {
    setObjectName(nameOf(panel.frame));
    makeHeader(binding);
    makeRows(binding);
    makeButtons(binding);
}

QLabel* QuizFrame::label(const char* kind) {
    auto* made = new QLabel(this);
    made->setTextFormat(Qt::PlainText);
    if (kind)
        made->setProperty(kind, true);
    return made;
}

void QuizFrame::makeHeader(FormBinding& binding) {
    title = label("quizTitle");
    place = label("secondary");
    statistic = label("secondary");
    binding.bind(asked.statistic, *statistic);
    notice = label("notice");
    notice->setWordWrap(true);
    binding.bind(asked.notice, *notice);
    task = label("quizTask");
    task->setWordWrap(true);
    binding.bind(asked.task, *task);
    known = label("quizTask");
    binding.bind(asked.known, *known);
    rule = label("secondary");
    rule->setWordWrap(true);
    binding.bind(asked.rule, *rule);
}

void QuizFrame::makeRows(FormBinding& binding) {
    int number = 0;
    for (const auto& row : asked.rows)
        questions.push_back(new QuizRow(++number, *row, texts, binding, this));
}

/// In the order of the keyboard.
void QuizFrame::makeButtons(FormBinding& binding) {
    solution = button(asked.solutionButton, binding);
    fly = button(asked.flyButton, binding);
    next = button(asked.nextButton, binding);
    cancel = button(asked.cancelButton, binding);
    random = new TickBox(this);
    binding.bind(asked.randomBox, *random);
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

QString QuizFrame::question() const {
    QStringList parts{QString::fromStdString(asked.frame.text())};
    for (const QLabel* part : {notice, task, known, rule})
        if (!part->text().isEmpty())
            parts << part->text();
    for (const QuizRow* row : questions)
        if (row->asked())
            parts << row->promptText();
    return parts.join(QStringLiteral(". "));
}

void QuizFrame::host(QuizFlightBar* bar) {
    flightBar = bar;
    bar->setParent(this);
}

QuizRow* QuizFrame::rowOf(QWidget* widget) const {
    for (QuizRow* row : questions)
        if (row->open() && widget && row->isAncestorOf(widget))
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

void QuizFrame::followTitle() {
    const QuestionPlace at = asked.place();
    title->setText(QString::fromStdString(asked.title()));
    place->setText(at.number > 0 ? textOf(texts, Text::questionPlace).arg(at.number).arg(at.count)
                                 : QString());
    setAccessibleName(question());
}

void QuizFrame::followFlight() {
    for (QuizRow* row : questions) {
        row->setCompact(watched);
        row->setVisible(row->asked() && !flown);
    }
    if (flightBar)
        flightBar->setVisible(hasBar());
    setNextPrimary(!flown);
}

/// Of a flight, starting is what comes first.
void QuizFrame::setNextPrimary(bool primary) {
    if (next->property("primary").toBool() == primary)
        return;
    next->setProperty("primary", primary);
    next->style()->unpolish(next);
    next->style()->polish(next);
}

QString QuizFrame::content() const {
    QStringList parts{QString::number(asked.frame.height()), QString::number(flown),
                      QString::number(watched)};
    for (const TextPanel* text : std::initializer_list<const TextPanel*>{
             &asked.frame, &asked.statistic, &asked.notice, &asked.task, &asked.known})
        parts << QString::fromStdString(text->text());
    for (const QuizRow* row : questions)
        parts << row->content();
    return parts.join(QLatin1Char('\f'));
}

/// The form changes often while a solution is replayed; that costs little.
bool QuizFrame::follow(bool flies, bool watches) {
    flown = flies;
    watched = watches && !flies;
    for (QLabel* text : {task, known})
        text->setVisible(!text->text().isEmpty());
    rule->setVisible(!rule->text().isEmpty() && !flown && !watched);
    QString now = content();
    if (now == shownContent)
        return false;
    shownContent = std::move(now);
    for (QuizRow* row : questions)
        row->follow();
    followTitle();
    followFlight();
    arrange(size(), true);
    update();
    return true;
}

int QuizFrame::scaled(int pixels) const {
    return qRound(pixels * quiz::scaleOf(*this));
}

int QuizFrame::buttonHeight() const {
    return next->sizeHint().height();
}

/// Room for the bar is kept from the beginning, so that nothing moves when it comes: the rows are
/// compact then.
int QuizFrame::wantedHeight(int width) const {
    const int now = arrange(QSize(width, 0), false);
    return flightBar && !hasBar() ? std::max(now, watchedHeight(width)) : now;
}

int QuizFrame::watchedHeight(int frameWidth) const {
    const int width = frameWidth - 2 * scaled(inset);
    const int gap = scaled(partGap);
    int top = arrangeHeader(scaled(inset - 2), width, false, true) + gap;
    top = arrangeTexts(top, width, false);
    for (const QuizRow* row : questions)
        if (row->asked())
            top += row->compactHeightFor(width) + scaled(quiz::compactGap);
    return top + gap + flightBar->heightIn(width) + gap + buttonHeight() + scaled(inset);
}

/// In a window too low for all of it the speeds of a replay and the statistic give way.
int QuizFrame::arrange(QSize size, bool placing) const {
    const int width = size.width() - 2 * scaled(inset);
    const int gap = scaled(partGap);
    const bool cramped = placing && arrange(size, false) > size.height();
    const bool counts = !cramped || !boxBesideButtons(width);
    int top = arrangeHeader(scaled(inset - 2), width, placing, counts) + gap;
    top = arrangeTexts(top, width, placing);
    const int bottom = size.height() - scaled(inset) - buttonHeight();
    const bool brief = cramped && !flown;
    if (placing && flightBar)
        flightBar->setBrief(brief);
    const int forBar = !hasBar() ? 0
                       : brief   ? flightBar->briefHeight()
                                 : flightBar->heightIn(width);
    const int bar = forBar > 0 ? forBar + gap : 0;
    if (!flown)
        top = arrangeRows(top, width, bottom - bar, placing);
    if (hasBar() && placing)
        flightBar->setGeometry(scaled(inset),
                               std::max(top, flown ? (top + bottom - bar) / 2 : bottom - bar),
                               width, forBar);
    top += bar;
    if (placing)
        placeButtons(std::max(top, bottom), width);
    return top + buttonHeight() + scaled(inset);
}

int QuizFrame::headerWidth(bool counts) const {
    const int forStatistic = counts ? scaled(statisticGap) + statistic->sizeHint().width() : 0;
    return title->sizeHint().width() + scaled(titleGap) + place->sizeHint().width() + forStatistic;
}

/// Title and, if it `counts`, statistic in one line, or in two where that is too long. The box for
/// random order stands in the second line if the buttons leave it no room.
int QuizFrame::arrangeHeader(int top, int width, bool placing, bool counts) const {
    const bool beside = boxBesideButtons(width);
    const bool oneLine = beside && headerWidth(counts) <= width;
    const int left = scaled(inset);
    const int tall = title->sizeHint().height();
    const int below =
        std::max(statistic->sizeHint().height(), beside ? 0 : random->sizeHint().height());
    const int second = oneLine ? top : top + tall + scaled(1);
    const int bottom = oneLine ? top + tall : second + below;
    if (!placing)
        return bottom + scaled(3);
    statistic->setVisible(counts);
    title->setGeometry(left, top, title->sizeHint().width(), tall);
    place->setGeometry(left + title->width() + scaled(titleGap), top, place->sizeHint().width(),
                       tall);
    const int forStatistic = statistic->sizeHint().width();
    statistic->setGeometry(oneLine ? left + width - forStatistic : left, second, forStatistic,
                           oneLine ? tall : below);
    if (!beside)
        random->setGeometry(left + width - random->sizeHint().width(), second,
                            random->sizeHint().width(), below);
    headerLine = bottom + scaled(3);
    return headerLine;
}

/// The rule stands beside what is known, or below it where that is too long.
int QuizFrame::arrangeTexts(int top, int width, bool placing) const {
    const int forRule = rule->fontMetrics().horizontalAdvance(rule->text()) + scaled(statisticGap);
    const bool beside = !rule->isHidden() && !known->isHidden() &&
                        known->sizeHint().width() + scaled(statisticGap) + forRule <= width;
    for (QLabel* text : {notice, task, known, rule}) {
        if (text->isHidden() || (text == rule && beside))
            continue;
        const int wide = text == known && beside ? width - forRule : width;
        const int tall = text->heightForWidth(wide);
        if (placing)
            text->setGeometry(scaled(inset), top, wide, tall);
        if (placing && wide < width)
            rule->setGeometry(scaled(inset) + wide, top, forRule, tall);
        top += tall + scaled(partGap);
    }
    return top;
}

/// As much for the prompts as the longest needs, if the answers keep their room. Answers stand in
/// two lines rather than prompts in three.
int QuizFrame::promptWidth(int width) const {
    int prompts = 0;
    int inLine = 0;
    int broken = 0;
    for (const QuizRow* row : questions) {
        if (!row->asked())
            continue;
        prompts = std::max(prompts, row->promptWidth());
        inLine = std::max(inLine, row->answersWidth());
        broken = std::max(broken, row->brokenAnswersWidth());
    }
    const int besideLines = width - inLine - scaled(inset);
    const int besideBroken = width - broken - scaled(inset);
    const int twoLines = qRound(twoLineShare * prompts);
    const int least = watched ? qRound(quiz::leastPromptShare * width) : 0;
    const int beside = besideLines >= twoLines ? besideLines : std::min(besideBroken, twoLines);
    return std::min(prompts, std::max(least, beside));
}

/// What is left of the height is spread between the rows.
int QuizFrame::arrangeRows(int top, int width, int bottom, bool placing) const {
    const int forPrompt = promptWidth(width);
    const int gap = scaled(watched ? quiz::compactGap : quiz::rowGap);
    const int start = top;
    int count = 0;
    for (const QuizRow* row : questions) {
        if (row->asked()) {
            top += row->heightFor(width, forPrompt) + gap;
            ++count;
        }
    }
    if (!placing || count == 0)
        return top + scaled(partGap) - gap;
    const int spare = std::clamp((bottom - top) / count, 0, scaled(2 * partGap));
    int y = start + spare / 2;
    for (QuizRow* row : questions) {
        if (!row->asked())
            continue;
        const int tall = row->heightFor(width, forPrompt);
        row->layOut(QRect(scaled(inset), y, width, tall), forPrompt);
        y += tall + gap + spare;
    }
    return top + scaled(partGap) - gap;
}

int QuizFrame::buttonsWidth() const {
    int width = 0;
    for (const QPushButton* each : {next, solution, fly, cancel})
        if (!each->isHidden())
            width += each->sizeHint().width() + scaled(buttonGap);
    return width - scaled(buttonGap);
}

bool QuizFrame::boxBesideButtons(int width) const {
    return buttonsWidth() + 2 * scaled(buttonGap) + random->sizeHint().width() <= width;
}

/// Leaving stands apart at the right.
void QuizFrame::placeButtons(int top, int width) const {
    int left = scaled(inset);
    for (QPushButton* each : {next, solution, fly}) {
        if (each->isHidden())
            continue;
        each->setGeometry(left, top, each->sizeHint().width(), buttonHeight());
        left += each->width() + scaled(buttonGap);
    }
    if (boxBesideButtons(width))
        random->setGeometry(left + scaled(buttonGap) / 2, top, random->sizeHint().width(),
                            buttonHeight());
    const int wide = cancel->sizeHint().width();
    cancel->setGeometry(scaled(inset) + width - wide, top, wide, buttonHeight());
}

void QuizFrame::resizeEvent(QResizeEvent*) {
    arrange(size(), true);
}

void QuizFrame::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(look::accent, 1.5));
    painter.setBrush(look::card);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.75, 0.75, -0.75, -0.75), look::moduleRadius,
                            look::moduleRadius);
    painter.setPen(look::hairline);
    painter.drawLine(scaled(inset), headerLine, width() - scaled(inset), headerLine);
}

} // namespace tarnel
