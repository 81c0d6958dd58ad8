#include "window/quiz/quiz_flight_bar.h"

#include "look/look.h"
#include "window/widgets/icons.h"
#include "window/widgets/replay_bar.h"
#include "window/widgets/segment_row.h"
#include "window/widgets/steady_label.h"
#include "window/widgets/wrap_layout.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QToolButton>

namespace tarnel {

namespace {

constexpr int rowGap = 8;
constexpr int shortestBar = 80; ///< px

/// Keeps the place of `widget` while it is hidden, so that its neighbours stay where they are.
void keepPlace(QWidget& widget) {
    QSizePolicy policy = widget.sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget.setSizePolicy(policy);
}

} // namespace

QuizFlightBar::QuizFlightBar(const QuizModel& quizModel, FormBinding& binding, QWidget* parent)
    : QWidget(parent), model(quizModel) {
    auto* parts = new WrapLayout(WrapLayout::Manner::flowing, look::gap, rowGap);
    setLayout(parts);
    startButton = new QPushButton(this);
    startButton->setProperty("primary", true);
    binding.bind(model.controls.startButton, *startButton);
    parts->addWidget(startButton);
    speeds = segmentRow(binding, textOf(model.texts, Text::speed),
                        {&model.controls.rateHalf, &model.controls.rateReal,
                         &model.controls.rateDouble, &model.controls.rateQuadruple},
                        this);
    speeds->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    parts->addWidget(speeds);
    parts->addLayout(makeReplayRow(binding));
    binding.follow([this] { follow(); });
}

QLayout* QuizFlightBar::makeReplayRow(FormBinding& binding) {
    auto* row = new QHBoxLayout;
    addSign(*row, binding, model.controls.replayPage.play, Sign::play);
    addSign(*row, binding, model.controls.replayPage.stop, Sign::stop);
    auto* bar = new ReplayBar(this);
    bar->setMinimumWidth(shortestBar);
    keepPlace(*bar);
    binding.bind(model.controls.replayPage.bar, *bar);
    row->addWidget(bar, 1);
    clock = new SteadyLabel(this);
    clock->setProperty("secondary", true);
    keepPlace(*clock);
    binding.bind(model.controls.replayPage.clock, *clock);
    row->addWidget(clock);
    backButton = new QPushButton(this);
    backButton->setProperty("quiz", true);
    keepPlace(*backButton);
    binding.bind(model.controls.backButton, *backButton);
    row->addWidget(backButton);
    return row;
}

void QuizFlightBar::addSign(QBoxLayout& row, FormBinding& binding, OptionButton& control,
                            Sign sign) {
    auto* button = new QToolButton(this);
    button->setIcon(signIcon(sign));
    binding.bind(control, *button);
    row.addWidget(button);
}

void QuizFlightBar::follow() {
    const Sign sign = model.flight.flies() ? Sign::stop : Sign::play;
    if (sign != shownSign)
        startButton->setIcon(signIcon(sign, inkOnAccent));
    shownSign = sign;
    startButton->setVisible(model.exercise.studentFlies());
    clock->setVisible(model.controls.replayPage.bar.visible());
}

void QuizFlightBar::setBrief(bool brief) {
    speeds->setVisible(!brief);
}

int QuizFlightBar::sparedHeight() const {
    return speeds->isHidden() ? rowGap + speeds->sizeHint().height() : 0;
}

QWidget* QuizFlightBar::firstControl() const {
    return model.exercise.studentFlies() ? startButton : backButton;
}

} // namespace tarnel
