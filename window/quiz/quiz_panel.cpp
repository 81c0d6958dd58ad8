#include "window/quiz/quiz_panel.h"

#include "window/quiz/quiz_flight_bar.h"
#include "window/quiz/quiz_frame.h"
#include "window/quiz/quiz_row.h"
#include "window/quiz/quiz_verdict.h"

#include <QAccessible>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>

#include <algorithm>

namespace tarnel {

namespace {

/// Has a screen reader say the name of `widget` at once.
void announce(QWidget& widget) {
    QAccessibleEvent alert(&widget, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

} // namespace

QuizPanel::QuizPanel(const QuizModel& quizModel, FormBinding& links, QWidget* parent)
    : QWidget(parent), model(quizModel), binding(links) {
    setObjectName(QStringLiteral("QAform1"));
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
    frames.back()->hide();
    frames.back()->setGeometry(rect());
    return frames.back();
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
    if (changed || tallestWidth != width() || shownHeight == 0)
        measure();
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
    question.clear();
    setVisible(frame != nullptr);
    for (QuizFrame* each : frames)
        each->setVisible(each == frame);
    if (frame)
        frame->host(flightBar);
}

int QuizPanel::wantedHeight(int width) const {
    if (!active)
        return 0;
    const int height = active->wantedHeight(width);
    return active->folded() || width != tallestWidth ? height : std::max(height, tallest);
}

/// A question is another if its texts are, or if a row is open again. The first answer has the
/// keyboard then; after an answer the next open row has it.
void QuizPanel::followQuestion() {
    std::vector<bool> isOpen;
    const QuizRow* closed = nullptr;
    bool opened = false;
    for (const QuizRow* row : active->rows()) {
        const std::size_t at = isOpen.size();
        const bool before = at < wasOpen.size() && wasOpen[at];
        isOpen.push_back(row->open());
        opened = opened || (row->open() && !before);
        if (before && !row->open() && row->asked())
            closed = row;
    }
    const bool unfolded = folded && !active->folded();
    const bool folds = !folded && active->folded();
    const bool isNew = opened || question != active->question();
    wasOpen = std::move(isOpen);
    question = active->question();
    folded = active->folded();
    if (isNew)
        announce(*active);
    else if (closed && !folded)
        announce(closed->verdictLabel());
    if (folds)
        flightAwaitsFocus = true;
    if (folded)
        focusFlight();
    else if (isNew || unfolded || closed)
        focusAnswer(isNew ? nullptr : closed);
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

void QuizPanel::resizeEvent(QResizeEvent*) {
    for (QuizFrame* frame : frames)
        frame->setGeometry(rect());
}

} // namespace tarnel
