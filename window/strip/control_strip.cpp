#include "window/strip/control_strip.h"

#include "look/look.h"
#include "window/strip/strip_chart_page.h"
#include "window/strip/strip_replay_page.h"
#include "window/strip/strip_station_page.h"
#include "window/strip/strip_tabs.h"
#include "window/strip/strip_wind_page.h"
#include "window/widgets/card.h"
#include "window/widgets/help_page.h"
#include "window/widgets/icons.h"
#include "window/widgets/segment_row.h"
#include "window/widgets/spoken.h"
#include "window/widgets/wrap_layout.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScrollArea>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace tarnel {

namespace {

constexpr int rowGap = 3;
constexpr int gapInRow = 5;

/// Narrower strips do without the words before the speeds and the read-outs.
constexpr int roomForCaptions = 420;

/// The help of the pages, in their order.
constexpr const char* pageHelp[] = {"chart", "replay", "chart", "radios"};

} // namespace

ControlStrip::ControlStrip(const StripModel& stripModel, FormBinding& links, QWidget* parent)
    : QWidget(parent), model(stripModel), binding(links) {
    tellKeys();
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(look::cardInset, look::cardInset - 2, look::cardInset,
                             look::cardInset - 2);
    rows->setSpacing(rowGap);
    rows->addLayout(makeFlightRow());
    rows->addLayout(makeTabRow());
    rows->addWidget(makePages(), 1);
    startButton->setIcon(signIcon(Sign::play, inkOnAccent));
    startButton->setFocus();
}

/// The letters on the status panels, in the tips of what does the same.
void ControlStrip::tellKeys() {
    binding.tellKey(model.controls.startButton, 'M');
    binding.tellKey(model.controls.replayPage.play, 'P');
    binding.tellKey(model.controls.replayPage.stop, 'P');
    binding.tellKey(model.controls.replayPage.hide, 'H');
    binding.tellKey(model.controls.chartPage.hide, 'H');
    binding.tellKey(model.controls.chartPage.trace, 'T');
    binding.tellKey(model.controls.chartPage.vectors, 'V');
    binding.tellKey(model.controls.windPage.none, 'W');
    binding.tellKey(model.controls.windPage.manual, 'W');
    binding.tellKey(model.controls.windPage.random, 'W');
    binding.tellKey(model.controls.radialCycleButton, 'R');
}

/// With large texts the speeds stand in a line of their own.
QLayout* ControlStrip::makeFlightRow() {
    auto* row = new WrapLayout(WrapLayout::Manner::flowing, gapInRow + 8, rowGap);
    startButton = new QPushButton(this);
    startButton->setProperty("primary", true);
    binding.bind(model.controls.startButton, *startButton);
    row->addWidget(startButton);
    auto* speeds = new QHBoxLayout;
    speeds->setSpacing(gapInRow);
    speedCaption = captioned(Text::speed);
    speeds->addWidget(speedCaption);
    QWidget* segments = segmentRow(binding, speedCaption->text(),
                                   {&model.controls.rateHalf, &model.controls.rateReal,
                                    &model.controls.rateDouble, &model.controls.rateQuadruple},
                                   this);
    segments->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    speeds->addWidget(segments, 1);
    row->addLayout(speeds);
    return row;
}

/// In the order of the pages.
std::vector<OptionButton*> ControlStrip::pageOptions() {
    StripPages& options = model.controls.pages;
    return {&options.chart, &options.replay, &options.wind, &options.stations};
}

/// With large texts the readouts stand in a line of their own.
QLayout* ControlStrip::makeTabRow() {
    auto* row = new WrapLayout(WrapLayout::Manner::flowing, 0, 0);
    auto* tabs = new StripTabs(this);
    setSpokenName(*tabs, textOf(model.boxes.texts, Text::stripPages));
    binding.bind(pageOptions(), *tabs);
    const auto follow = [tabs](int page) { setHelpPage(*tabs, pageHelp[page]); };
    connect(tabs, &QTabBar::currentChanged, tabs, follow);
    follow(tabs->currentIndex());
    row->addWidget(tabs);
    auto* readouts = new QHBoxLayout;
    readouts->setSpacing(0);
    readouts->addStretch(1);
    addReadout(*readouts, Text::autopilotSpeed, model.controls.speedReadout, Text::unitKnots);
    readouts->addSpacing(12);
    addReadout(*readouts, Text::turnRate, model.controls.turnReadout, Text::unitDegreesPerSecond);
    row->addLayout(readouts);
    return row;
}

void ControlStrip::addReadout(QHBoxLayout& row, Text name, TextPanel& readout, Text unit) {
    constexpr int beforeUnit = 4;
    readoutCaptions.push_back(captioned(name));
    row.addWidget(readoutCaptions.back());
    row.addSpacing(beforeUnit);
    auto* value = new QLabel(this);
    value->setProperty("readout", true);
    binding.bind(readout, *value);
    row.addWidget(value);
    row.addSpacing(beforeUnit);
    row.addWidget(captioned(unit));
}

QScrollArea* ControlStrip::makePages() {
    scroll = new QScrollArea(this);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setMinimumHeight(1); // the strip measures the pages itself
    stack = new QStackedWidget;
    pages = {new StripChartPage(model, binding, stack), new StripReplayPage(model, binding, stack),
             new StripWindPage(model, binding, stack), new StripStationPage(model, binding, stack)};
    for (std::size_t i = 0; i < pages.size(); ++i) {
        setHelpPage(*pages[i], pageHelp[i]);
        stack->addWidget(pages[i]);
    }
    scroll->setWidget(stack);
    return scroll;
}

QLabel* ControlStrip::captioned(Text text) {
    auto* label = new QLabel(textOf(model.boxes.texts, text), this);
    label->setProperty("secondary", true);
    return label;
}

void ControlStrip::refresh() {
    const std::vector<OptionButton*> order = pageOptions();
    for (std::size_t i = 0; i < order.size(); ++i)
        if (order[i]->chosen())
            stack->setCurrentIndex(static_cast<int>(i));
    pages[static_cast<std::size_t>(stack->currentIndex())]->refresh();
    const bool runs = model.flight.flies();
    if (runs == startShowsStop)
        return;
    startShowsStop = runs;
    startButton->setIcon(signIcon(runs ? Sign::stop : Sign::play, inkOnAccent));
}

int ControlStrip::wantedHeight(int width) const {
    const QMargins margins = layout()->contentsMargins();
    const int inner = width - margins.left() - margins.right();
    int tallest = 0;
    for (const StripPage* page : pages)
        tallest = std::max(tallest, page->heightForWidth(inner));
    return heightWith(tallest, width);
}

int ControlStrip::leastHeight(int width) const {
    constexpr int lines = 2;
    constexpr int lineGap = 3;
    const int line = startButton->sizeHint().height();
    return heightWith(lines * line - lineGap, width);
}

int ControlStrip::heightWith(int page, int width) const {
    const QMargins margins = layout()->contentsMargins();
    const int inner = width - margins.left() - margins.right();
    int height = margins.top() + margins.bottom() + page;
    for (int i = 0; i + 1 < layout()->count(); ++i)
        height += layout()->itemAt(i)->heightForWidth(inner) + rowGap;
    return height;
}

void ControlStrip::resizeEvent(QResizeEvent*) {
    const bool room = width() >= roomForCaptions;
    speedCaption->setVisible(room);
    for (QLabel* caption : readoutCaptions)
        caption->setVisible(room);
}

void ControlStrip::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintCard(painter, rect());
    painter.setPen(look::colours().hairline);
    const int line = scroll->y() - rowGap;
    painter.drawLine(look::cardInset, line, width() - look::cardInset, line);
}

} // namespace tarnel
