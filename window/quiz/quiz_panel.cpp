#include "window/quiz/quiz_panel.h"

#include "window/quiz/quiz_flight_bar.h"
#include "window/quiz/quiz_frame.h"
#include "window/quiz/quiz_row.h"
#include "window/quiz/quiz_verdict.h"
#include "window/widgets/announce.h"
#include "window/widgets/mnemonics.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QStackedLayout>

#include <algorithm>

namespace tarnel {

QuizPanel::QuizPanel(const QuizModel& quizModel, FormBinding& links, QWidget* parent)
    : QWidget(parent), model(quizModel), binding(links) {
    setObjectName(QStringLiteral("QAform1"));
    pages = new QStackedLayout(this);
    flightBar = new QuizFlightBar(model, binding, this);
    flightBar->hide();
    hide();
}

/// A frame is made when its first exercise starts: the window comes up sooner.
QuizFrame* QuizPanel::runningFrame() {
    ExercisePanel* panel = model.exercise.runs() ? model.exercises.activePanel() : nullptr;
    if (!panel)
        return nullptr;
    const auto found =
        std::ranges::find_if(frames, [panel](QuizFrame* each) { return &each->panel() == panel; });
    if (found != frames.end())
        return *found;
    frames.push_back(new QuizFrame(*panel, model.texts, binding, this));
    pages->addWidget(frames.back());
    giveMnemonics(*frames.back(), lettersTaken);
    return frames.back();
}

void QuizPanel::giveLetters(const QString& taken) {
    lettersTaken = giveMnemonics(*flightBar, taken);
}

/// What is made late would come last to the keyboard. The flight bar stands above the buttons.
void QuizPanel::chain(const QuizFrame& frame) {
    QWidget* before = previousInFocusChain();
    while (before->focusPolicy() == Qt::NoFocus && before != this)
        before = before->previousInFocusChain();
    const auto follow = [&before](QWidget* part) {
        if (part->focusPolicy() == Qt::NoFocus || part->window() != before->window())
            return;
        setTabOrder(before, part);
        before = part;
    };
    for (auto* part : frame.findChildren<QWidget*>()) {
        if (flightBar->isAncestorOf(part))
            continue;
        if (part == frame.nextButton())
            for (auto* control : flightBar->findChildren<QWidget*>())
                follow(control);
        follow(part);
    }
}

void QuizPanel::refresh() {
    QuizFrame* running = runningFrame();
    if (shown == model.controls.state.revision() && running == active)
        return;
    shown = model.controls.state.revision();
    if (running != active)
        show(running);
    if (!active)
        return;
    const bool changed =
        active->follow(model.exercise.studentFlies(), model.exercise.solutionShown());
    followQuestion();
    if (changed || tallestWidth != width() || shownHeight == 0) {
        measure();
        active->spareRoom();
    }
}

/// Keeps the height that the tallest question of the exercise wants.
void QuizPanel::measure() {
    if (tallestWidth != width())
        tallest = 0;
    tallestWidth = width();
    if (!active->folded())
        tallest = std::max(tallest, active->wantedHeight(width()));
    shownHeight = std::max(1, wantedHeight(width()));
}

void QuizPanel::show(QuizFrame* frame) {
    active = frame;
    shownHeight = tallest = 0;
    wasOpen.clear();
    question = 0;
    setVisible(frame != nullptr);
    if (!frame)
        return;
    pages->setCurrentWidget(frame);
    frame->host(flightBar);
    chain(*frame);
}

int QuizPanel::wantedHeight(int width) const {
    if (!active)
        return 0;
    const int height = active->wantedHeight(width);
    return active->folded() || width != tallestWidth ? height : std::max(height, tallest);
}

/// Of a new question the first answer has the keyboard; after an answer the next open row has it.
void QuizPanel::followQuestion() {
    const std::uint64_t asked = active->panel().question();
    const bool isNew = question != asked;
    const bool unfolded = folded && !active->folded();
    const bool folds = !folded && active->folded();
    const QuizRow* closed = rowJustClosed();
    question = asked;
    folded = active->folded();
    if (isNew)
        announce(*this, active->accessibleName());
    else if (closed && !folded)
        announce(*this, closed->verdictLabel().accessibleName());
    const bool flies = model.exercise.studentFlies();
    if (folds || (flies && !flew))
        flightAwaitsFocus = true;
    flew = flies;
    if (folded)
        focusFlight();
    else if (isNew || unfolded || closed)
        focusAnswer(isNew ? nullptr : closed);
}

/// The last of the rows that were open before; null if none was closed.
const QuizRow* QuizPanel::rowJustClosed() {
    const QuizRow* closed = nullptr;
    wasOpen.resize(active->rows().size());
    for (std::size_t i = 0; i < wasOpen.size(); ++i) {
        const QuizRow* row = active->rows()[i];
        if (wasOpen[i] && !row->open() && row->asked())
            closed = row;
        wasOpen[i] = row->open();
    }
    return closed;
}

void QuizPanel::focusAnswer(const QuizRow* after) {
    const QuizRow* row = active->openRowAfter(after);
    QWidget* target = row ? row->firstAnswer() : active->nextButton();
    target->setFocus(Qt::ShortcutFocusReason);
}

/// The flight's controls come alive a tick after the frame has folded.
void QuizPanel::focusFlight() {
    QWidget* target = flightBar->firstControl();
    if (!flightAwaitsFocus || !target->isEnabled() || !target->isVisible())
        return;
    flightAwaitsFocus = false;
    target->setFocus(Qt::ShortcutFocusReason);
}

bool QuizPanel::takeKey(const QKeyEvent& event) {
    if (!active || (event.modifiers() & ~Qt::KeypadModifier))
        return false;
    if (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter)
        return enter();
    if (event.key() < Qt::Key_0 || event.key() > Qt::Key_9 || active->folded())
        return false;
    QuizRow* row = active->rowOf(QApplication::focusWidget());
    if (row)
        row->type(event.text());
    return row != nullptr;
}

bool QuizPanel::enter() {
    QWidget* focus = QApplication::focusWidget();
    auto* button = qobject_cast<QAbstractButton*>(focus);
    if (button && isAncestorOf(button))
        button->click();
    else if (qobject_cast<QLineEdit*>(focus) && isAncestorOf(focus))
        active->rowOf(focus)->goOnFrom(focus);
    else if (active->answered() && !active->folded())
        active->nextButton()->click();
    else
        return false;
    return true;
}

void QuizPanel::keyPressEvent(QKeyEvent* event) {
    if (!takeKey(*event))
        QWidget::keyPressEvent(event);
}

} // namespace tarnel
