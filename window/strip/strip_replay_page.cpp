#include "window/strip/strip_replay_page.h"

#include "look/look.h"
#include "window/widgets/icons.h"
#include "window/widgets/replay_bar.h"
#include "window/widgets/steady_label.h"

#include <QHBoxLayout>
#include <QToolButton>
#include <QVBoxLayout>

namespace tarnel {

namespace {

constexpr int buttonGap = 4;
constexpr int gapBeforeBar = 10;

} // namespace

StripReplayPage::StripReplayPage(const StripModel& stripModel, FormBinding& links, QWidget* parent)
    : StripPage(stripModel, links, parent) {
    auto* row = new QHBoxLayout;
    row->setSpacing(buttonGap);
    addSign(*row, model.controls.replayPage.play, Sign::play);
    addSign(*row, model.controls.replayPage.stop, Sign::stop);
    addSign(*row, model.controls.replayPage.loop, Sign::loop);
    addSign(*row, model.controls.replayPage.interpolate, Sign::interpolate);
    row->addSpacing(gapBeforeBar);
    row->addWidget(makeTimeline(), 1);
    lines->addLayout(row);
    lines->addSpacing(buttonGap);
    WrapLayout* boxes = addColumns();
    addBox(*boxes, model.controls.replayPage.hide);
    addBox(*boxes, model.controls.replayPage.lock);
    addBox(*boxes, model.controls.commentPanel.write);
    finish();
}

template <class Control>
void StripReplayPage::addSign(QBoxLayout& row, Control& control, Sign sign) {
    auto* button = new QToolButton(this);
    button->setIcon(signIcon(sign));
    binding.bind(control, *button);
    row.addWidget(button);
}

QWidget* StripReplayPage::makeTimeline() {
    // It keeps its place while hidden, so that the buttons stay where they are.
    auto* place = new QWidget(this);
    auto* around = new QHBoxLayout(place);
    around->setContentsMargins(0, 0, 0, 0);
    timeline = new QWidget(place);
    around->addWidget(timeline);
    auto* row = new QHBoxLayout(timeline);
    row->setContentsMargins(0, 0, 0, 0);
    auto* bar = new ReplayBar(timeline);
    binding.bind(model.controls.replayPage.bar, *bar);
    row->addWidget(bar, 1);
    auto* clock = new SteadyLabel(timeline);
    clock->setProperty("secondary", true);
    binding.bind(model.controls.replayPage.clock, *clock);
    row->addWidget(clock);
    return place;
}

void StripReplayPage::refresh() {
    timeline->setVisible(model.controls.replayPage.bar.visible());
}

} // namespace tarnel
