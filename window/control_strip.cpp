#include "window/control_strip.h"

#include "window/bold_text.h"
#include "window/icons.h"
#include "window/look.h"
#include "window/tick_box.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QSlider>
#include <QToolButton>
#include <QVBoxLayout>

#include <array>

namespace tarnel {

namespace {

constexpr int rowGap = 6;

/// Narrower strips do without the word before the speeds.
constexpr int roomForSpeedCaption = 420;

} // namespace

ControlStrip::ControlStrip(Form1& owner, FormBinding& links, QWidget* parent)
    : QWidget(parent), form(owner), binding(links) {
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(look::cardInset, look::cardInset - 2, look::cardInset,
                             look::cardInset - 2);
    rows->setSpacing(rowGap);
    rows->addLayout(makeFlightRow());
    rows->addLayout(makeReplayRow());
    rows->addLayout(makeBoxes());
    rows->addLayout(makeReadouts());
    startButton->setIcon(signIcon(Sign::play, Qt::white));
    startButton->setFocus();
}

QHBoxLayout* ControlStrip::makeFlightRow() {
    auto* row = new QHBoxLayout;
    auto* start = new QPushButton(this);
    start->setProperty("primary", true);
    binding.bind(form.startButton, *start);
    startButton = start;
    row->addWidget(start);
    row->addSpacing(8);
    speedCaption = captioned(Text::speed);
    row->addWidget(speedCaption);

    auto* segments = new QHBoxLayout;
    segments->setSpacing(0);
    const std::array<OptionButton*, 4> rates = {&form.rateHalf, &form.rateReal, &form.rateDouble,
                                                &form.rateQuadruple};
    for (OptionButton* rate : rates) {
        auto* segment = new QPushButton(this);
        segment->setProperty("segment", rate == rates.front()  ? "first"
                                        : rate == rates.back() ? "last"
                                                               : "middle");
        binding.bind(*rate, *segment);
        segments->addWidget(segment, boldTextWidth(*segment));
    }
    row->addLayout(segments, 1);
    return row;
}

/// The replay's controls stand in their place until a replay can be flown.
QHBoxLayout* ControlStrip::makeReplayRow() {
    auto* row = new QHBoxLayout;
    row->addWidget(captioned(Text::pageReplay));
    struct ReplayButton {
        const char* name;
        Sign sign;
        Text caption;
    };
    static constexpr ReplayButton buttons[] = {
        {"Option11", Sign::play, Text::replayPlay},
        {"Option12", Sign::stop, Text::replayStop},
        {"Check11", Sign::loop, Text::loopReplay},
        {"Check13", Sign::interpolate, Text::interpolate},
    };
    for (const ReplayButton& each : buttons) {
        auto* button = new QToolButton(this);
        button->setObjectName(QString::fromLatin1(each.name));
        button->setIcon(signIcon(each.sign, look::ink));
        button->setAccessibleName(textOf(form.texts, each.caption));
        button->setEnabled(false);
        row->addWidget(button);
    }
    auto* bar = new QSlider(Qt::Horizontal, this);
    bar->setObjectName(QStringLiteral("HScroll1"));
    bar->setAccessibleName(textOf(form.texts, Text::replayPosition));
    bar->setEnabled(false);
    row->addWidget(bar, 1);
    return row;
}

QLayout* ControlStrip::makeBoxes() {
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(2);
    const std::array<CheckBox*, 4> boxes = {&form.chartPage.trace, &form.replayPage.hide, &form.replayPage.lock,
                                            &form.floatingGyroBox};
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        auto* box = new TickBox(this);
        binding.bind(*boxes[i], *box);
        grid->addWidget(box, static_cast<int>(i / 2), static_cast<int>(i % 2));
    }
    return grid;
}

QHBoxLayout* ControlStrip::makeReadouts() {
    auto* row = new QHBoxLayout;
    const auto addReadout = [&](Text name, TextPanel& readout, Text unit) {
        row->addWidget(captioned(name));
        auto* value = new QLabel(this);
        value->setProperty("readout", true);
        binding.bind(readout, *value);
        row->addWidget(value);
        row->addWidget(captioned(unit));
        row->addSpacing(14);
    };
    addReadout(Text::autopilotSpeed, form.speedReadout, Text::unitKnots);
    addReadout(Text::turnRate, form.turnReadout, Text::unitDegreesPerSecond);
    row->addStretch(1);
    auto* cycle = new QPushButton(this);
    binding.bind(form.radialCycleButton, *cycle);
    row->addWidget(cycle);
    return row;
}

QLabel* ControlStrip::captioned(Text text) {
    auto* label = new QLabel(textOf(form.texts, text), this);
    label->setProperty("secondary", true);
    return label;
}

void ControlStrip::refresh() {
    const bool runs = form.simulationRuns();
    if (runs == startShowsStop)
        return;
    startShowsStop = runs;
    startButton->setIcon(signIcon(runs ? Sign::stop : Sign::play, Qt::white));
}

void ControlStrip::resizeEvent(QResizeEvent*) {
    speedCaption->setVisible(width() >= roomForSpeedCaption);
}

void ControlStrip::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(look::line);
    painter.setBrush(look::card);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), look::controlRadius,
                            look::controlRadius);
}

} // namespace tarnel
