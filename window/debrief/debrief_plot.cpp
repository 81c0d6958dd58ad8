#include "window/debrief/debrief_plot.h"

#include "look/panel_look.h"
#include "window/debrief/plot_legend.h"
#include "window/debrief/plot_view.h"
#include "window/widgets/dark_list.h"
#include "window/widgets/icons.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QToolButton>
#include <QVBoxLayout>

#include <array>

namespace tarnel {

namespace {

constexpr int headGap = 4;

std::array<OptionButton*, 4> ratesOf(TrainerControls& trainer) {
    return {&trainer.rateHalf, &trainer.rateReal, &trainer.rateDouble, &trainer.rateQuadruple};
}

} // namespace

DebriefPlot::DebriefPlot(const DebriefModel& debriefModel, FormBinding& links,
                         PictureStore& pictures, const ModelGuard& modelGuard, QWidget* parent)
    : QWidget(parent), model(debriefModel), guard(modelGuard) {
    setObjectName(QStringLiteral("DebriefPlot"));
    auto* parts = new QVBoxLayout(this);
    parts->setContentsMargins(look::moduleInset, headGap, look::moduleInset, headGap);
    parts->setSpacing(headGap);
    parts->addLayout(makeHead(links));
    plot = new PlotView(model, pictures, this);
    plot->guard = guard;
    parts->addWidget(plot, 1);
}

QLayout* DebriefPlot::makeHead(FormBinding& binding) {
    auto* row = new QHBoxLayout;
    row->setSpacing(headGap);
    auto* title = new QLabel(textOf(model.boxes.texts, Text::debriefOverTime), this);
    title->setProperty("moduleCaption", true);
    row->addWidget(title);
    legend = new PlotLegend(model, this);
    row->addWidget(legend, 1);
    QToolButton* previous = addButton(*row, Text::debriefPrevious);
    previous->setIcon(panelSignIcon(Sign::previous));
    binding.bind(model.controls.previous, *previous);
    play = addButton(*row, Text::replayPlay);
    play->setObjectName(QStringLiteral("DebriefPlay"));
    connect(play, &QToolButton::clicked, this, [this] {
        ReplayPage& page = model.trainer.replayPage;
        guard([&] { model.replay.runs() ? page.stop.click() : page.play.click(); });
    });
    QToolButton* next = addButton(*row, Text::debriefNext);
    next->setIcon(panelSignIcon(Sign::next));
    binding.bind(model.controls.next, *next);
    makeRates(*row, binding);
    auto* clock = new QLabel(this);
    clock->setProperty("moduleCaption", true);
    binding.bind(model.trainer.replayPage.clock, *clock);
    row->addSpacing(look::gap);
    row->addWidget(clock);
    return row;
}

QToolButton* DebriefPlot::addButton(QHBoxLayout& row, Text name) {
    auto* button = new QToolButton(this);
    button->setProperty("dark", true);
    button->setToolButtonStyle(Qt::ToolButtonIconOnly);
    button->setAccessibleName(textOf(model.boxes.texts, name));
    button->setToolTip(textOf(model.boxes.texts, name));
    row.addWidget(button);
    return button;
}

void DebriefPlot::makeRates(QHBoxLayout& row, FormBinding& binding) {
    rates = new DarkList(this);
    rates->setObjectName(QStringLiteral("DebriefRate"));
    rates->setProperty("dark", true);
    rates->setAccessibleName(textOf(model.boxes.texts, Text::speed));
    for (const OptionButton* rate : ratesOf(model.trainer))
        rates->addItem(textOf(model.boxes.texts, *rate->caption()));
    connect(rates, &DarkList::activated, this, [this](int index) {
        guard([&] { ratesOf(model.trainer)[static_cast<std::size_t>(index)]->click(); });
    });
    binding.follow([this] {
        const auto all = ratesOf(model.trainer);
        for (std::size_t i = 0; i < all.size(); ++i)
            if (all[i]->chosen())
                rates->setCurrentIndex(static_cast<int>(i));
    });
    row.addWidget(rates);
}

void DebriefPlot::showPlay() {
    if (shownPlaying == model.replay.runs())
        return;
    shownPlaying = model.replay.runs();
    const Text name = *shownPlaying ? Text::replayStop : Text::replayPlay;
    play->setIcon(panelSignIcon(*shownPlaying ? Sign::stop : Sign::play));
    play->setAccessibleName(textOf(model.boxes.texts, name));
    play->setToolTip(textOf(model.boxes.texts, name));
}

void DebriefPlot::refresh() {
    if (!isVisible())
        return;
    showPlay();
    plot->refresh();
    if (shownRevision != model.desk.revision()) {
        shownRevision = model.desk.revision();
        legend->update();
    }
}

void DebriefPlot::setScale(double scale) {
    plot->setScale(std::max(1.0, scale));
}

void DebriefPlot::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(look::bezelTop, 1));
    painter.setBrush(look::downward(0, height(), look::moduleTop, look::moduleBottom));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), look::moduleRadius,
                            look::moduleRadius);
}

} // namespace tarnel
