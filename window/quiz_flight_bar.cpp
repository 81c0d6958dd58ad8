#include "window/quiz_flight_bar.h"

#include "window/icons.h"
#include "window/look.h"
#include "window/replay_bar.h"
#include "window/segment_row.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace tarnel {

namespace {

constexpr int rowGap = 8;

/// Keeps the place of `widget` while it is hidden, so that its neighbours stay where they are.
void keepPlace(QWidget& widget) {
    QSizePolicy policy = widget.sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget.setSizePolicy(policy);
}

} // namespace

QuizFlightBar::QuizFlightBar(Form1& owner, FormBinding& binding, QWidget* parent)
    : QWidget(parent), form(owner) {
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(rowGap);
    addFlightRow(*rows, binding);
    addReplayRow(*rows, binding);
    binding.follow([this] { follow(); });
}

void QuizFlightBar::addFlightRow(QBoxLayout& rows, FormBinding& binding) {
    auto* row = new QHBoxLayout;
    startButton = new QPushButton(this);
    startButton->setProperty("primary", true);
    binding.bind(form.startButton, *startButton);
    row->addWidget(startButton);
    row->addSpacing(look::gap);
    row->addWidget(
        segmentRow(binding, {&form.rateHalf, &form.rateReal, &form.rateDouble, &form.rateQuadruple},
                   this),
        1);
    rows.addLayout(row);
}

void QuizFlightBar::addReplayRow(QBoxLayout& rows, FormBinding& binding) {
    auto* row = new QHBoxLayout;
    addSign(*row, binding, form.replayPage.play, Sign::play);
    addSign(*row, binding, form.replayPage.stop, Sign::stop);
    auto* bar = new ReplayBar(this);
    keepPlace(*bar);
    binding.bind(form.replayPage.bar, *bar);
    row->addWidget(bar, 1);
    auto* clock = new QLabel(this);
    clock->setProperty("secondary", true);
    binding.bind(form.replayPage.clock, *clock);
    row->addWidget(clock);
    backButton = new QPushButton(this);
    backButton->setProperty("quiz", true);
    binding.bind(form.backButton, *backButton);
    row->addWidget(backButton);
    rows.addLayout(row);
}

void QuizFlightBar::addSign(QBoxLayout& row, FormBinding& binding, OptionButton& control,
                            Sign sign) {
    auto* button = new QToolButton(this);
    button->setIcon(signIcon(sign, look::ink));
    binding.bind(control, *button);
    row.addWidget(button);
}

void QuizFlightBar::follow() {
    startButton->setIcon(signIcon(form.simulationRuns() ? Sign::stop : Sign::play, Qt::white));
}

QWidget* QuizFlightBar::firstControl() const {
    return form.QAform1.c_QAFly > 0 ? startButton : backButton;
}

} // namespace tarnel
