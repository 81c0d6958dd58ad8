#include "window/quiz/quiz_flight_bar.h"

#include "look/look.h"
#include "window/widgets/icons.h"
#include "window/widgets/quiz_measures.h"
#include "window/widgets/replay_bar.h"
#include "window/widgets/segment_row.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace tarnel {

namespace {

constexpr int rowGap = 8;
constexpr int roomForSpeeds = 500; ///< px at text scale 1, so that the replay's bar stays long

/// Keeps the place of `widget` while it is hidden, so that its neighbours stay where they are.
void keepPlace(QWidget& widget) {
    QSizePolicy policy = widget.sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget.setSizePolicy(policy);
}

} // namespace

QuizFlightBar::QuizFlightBar(const QuizModel& quizModel, FormBinding& binding, QWidget* parent)
    : QWidget(parent), model(quizModel) {
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(rowGap);
    rows->addLayout(flightRow = makeFlightRow(binding));
    rows->addLayout(replayRow = makeReplayRow(binding));
    binding.follow([this] { follow(); });
}

QBoxLayout* QuizFlightBar::makeFlightRow(FormBinding& binding) {
    auto* row = new QHBoxLayout;
    row->setSpacing(look::gap);
    startButton = new QPushButton(this);
    startButton->setProperty("primary", true);
    binding.bind(model.controls.startButton, *startButton);
    row->addWidget(startButton);
    speeds = segmentRow(binding,
                        {&model.controls.rateHalf, &model.controls.rateReal,
                         &model.controls.rateDouble, &model.controls.rateQuadruple},
                        this);
    row->addWidget(speeds, 1);
    return row;
}

QBoxLayout* QuizFlightBar::makeReplayRow(FormBinding& binding) {
    auto* row = new QHBoxLayout;
    addSign(*row, binding, model.controls.replayPage.play, Sign::play);
    addSign(*row, binding, model.controls.replayPage.stop, Sign::stop);
    auto* bar = new ReplayBar(this);
    keepPlace(*bar);
    binding.bind(model.controls.replayPage.bar, *bar);
    row->addWidget(bar, 1);
    clock = new QLabel(this);
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
    button->setIcon(signIcon(sign, look::ink));
    binding.bind(control, *button);
    row.addWidget(button);
}

void QuizFlightBar::follow() {
    const Sign sign = model.flight.flies() ? Sign::stop : Sign::play;
    const QColor ink = model.controls.startButton.enabled() ? Qt::white : look::secondaryInk;
    startButton->setIcon(signIcon(sign, ink));
    startButton->setVisible(model.exercise.studentFlies());
    clock->setVisible(model.controls.replayPage.bar.visible());
}

int QuizFlightBar::heightIn(int width) {
    const bool starts = model.exercise.studentFlies();
    placeSpeeds(starts || width < roomForSpeeds * quiz::scaleOf(*this));
    const QWidget& first = starts ? *static_cast<QWidget*>(startButton) : *speeds;
    return briefHeight() + (speedsBesideStart ? rowGap + first.sizeHint().height() : 0);
}

/// Said by its tallest parts: a layout that is hidden does not notice what has become empty.
int QuizFlightBar::briefHeight() const {
    return std::max(backButton->sizeHint().height(), speeds->sizeHint().height());
}

void QuizFlightBar::setBrief(bool brief) {
    speeds->setVisible(!brief);
}

void QuizFlightBar::placeSpeeds(bool besideStart) {
    if (besideStart == speedsBesideStart)
        return;
    speedsBesideStart = besideStart;
    (besideStart ? replayRow : flightRow)->removeWidget(speeds);
    if (besideStart)
        flightRow->addWidget(speeds, 1);
    else
        replayRow->insertWidget(replayRow->indexOf(backButton), speeds);
}

QWidget* QuizFlightBar::firstControl() const {
    return model.exercise.studentFlies() ? startButton : backButton;
}

} // namespace tarnel
