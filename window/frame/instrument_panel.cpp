#include "window/frame/instrument_panel.h"

#include "look/panel_look.h"
#include "window/dials/channel_lamp.h"
#include "window/dials/instrument_header.h"
#include "window/dials/instrument_view.h"
#include "window/radios/autopilot_module.h"
#include "window/radios/dme_module.h"
#include "window/radios/nav_module.h"
#include "window/radios/stopwatch_module.h"
#include "window/widgets/cover_plate.h"
#include "window/widgets/help_page.h"
#include "window/widgets/style_sheet.h"

#include <QPainter>

#include <algorithm>

namespace tarnel {

InstrumentPanel::InstrumentPanel(const InstrumentPanelModel& panelModel, FormBinding& binding,
                                 PictureStore& pictures, const ModelGuard& guard, QWidget* parent)
    : QWidget(parent), model(panelModel) {
    setObjectName(QStringLiteral("InstrumentPanel"));
    makeInstruments(binding, pictures, guard);
    makeModules(binding, pictures, guard);
}

void InstrumentPanel::makeInstruments(FormBinding& binding, PictureStore& pictures,
                                      const ModelGuard& guard) {
    const std::array<HeaderControls, 2> controls = {
        HeaderControls{model.positions.links2(), model.controls.inst2Small,
                       model.controls.inst2Large, model.positions, model.exercise},
        HeaderControls{model.positions.links3(), model.controls.inst3Small,
                       model.controls.inst3Large, model.positions, model.exercise}};
    for (std::size_t i = 0; i < controls.size(); ++i) {
        headers[i] = new InstrumentHeader(controls[i], model.boxes, binding, this);
        instruments[i] = new InstrumentView(controls[i].links.position.instrument, pictures,
                                            model.boxes.texts, this);
        instruments[i]->guard = guard;
        instruments[i]->stations = [this, &position = controls[i].links.position] {
            return stationsOf(position);
        };
        instruments[i]->setObjectName(QStringLiteral("UserControl13_%1").arg(i));
        channelLamps[i] = new ChannelLamp(this);
        binding.bind(controls[i].links.channelButton, *channelLamps[i]);
        plates[i] = new CoverPlate(model.boxes.texts, this);
    }
    coverInstruments();
}

SpokenStations InstrumentPanel::stationsOf(const InstrumentPosition& position) const {
    const NeedleSources needles = needleSources(position, model.positions.feedSources());
    return {spokenStation(needles.first, model.sim, model.boxes.texts),
            spokenStation(needles.second, model.sim, model.boxes.texts)};
}

void InstrumentPanel::makeModules(FormBinding& binding, PictureStore& pictures,
                                  const ModelGuard& guard) {
    nav1 =
        new NavModule(model.controls.NAVControlFace1, nav1Texts, pictures, model.boxes.texts, this);
    nav2 =
        new NavModule(model.controls.NAVControlFace2, nav2Texts, pictures, model.boxes.texts, this);
    adf =
        new NavModule(model.controls.ADFControlFace1, adfTexts, pictures, model.boxes.texts, this);
    dme = new DmeModule(model.controls.DMEControlFace1, pictures, model.boxes.texts, this);
    dme->station = [this] {
        return spokenStation(dmeSource(model.controls.DMEControlFace1, model.sim), model.sim,
                             model.boxes.texts);
    };
    stopwatch = new StopwatchModule(model.controls.tvsmtimer1, pictures, model.boxes.texts, this);
    binding.bind(model.controls.stopwatchStartButton, stopwatch->startButton());
    binding.bind(model.controls.stopwatchResetButton, stopwatch->resetButton());
    autopilot =
        new AutopilotModule(model.controls.APControlFace1, pictures, model.boxes.texts, this);
    modules = {nav1, nav2, adf, dme, stopwatch, autopilot};
    for (ModuleFrame* module : modules)
        module->guard = guard;
    nameModules();
}

void InstrumentPanel::nameModules() {
    constexpr std::pair<const char*, const char*> namesAndHelp[] = {
        {"NAVControlFace1", "radios"}, {"NAVControlFace2", "radios"}, {"ADFControlFace1", "radios"},
        {"DMEControlFace1", "radios"}, {"tvsmtimer1", "stopwatch"},   {"APControlFace1", "flight"},
    };
    for (std::size_t i = 0; i < modules.size(); ++i) {
        modules[i]->setObjectName(QString::fromLatin1(namesAndHelp[i].first));
        setHelpPage(*modules[i], namesAndHelp[i].second);
    }
}

void InstrumentPanel::layOutChannelLamp(std::size_t position, const QRect& bezel) {
    const double side = bezel.width();
    const double inset = look::bezel::keyInset * side;
    const double high = std::max<double>(look::bezel::keyHeight * side, look::leastTarget);
    channelLamps[position]->setGeometry(QRectF(bezel.left() + inset, bezel.top() + inset,
                                               look::bezel::channelButtonWidth * side, high)
                                            .toRect());
    channelLamps[position]->raise();
}

/// Under a plate nothing is to be reached by keyboard either.
void InstrumentPanel::coverInstruments() {
    const QuestionCover cover = model.exercise.cover();
    if (cover == shownCover)
        return;
    shownCover = cover;
    for (std::size_t i = 0; i < plates.size(); ++i) {
        plates[i]->setReason(textOf(model.boxes.texts, cover.reason));
        plates[i]->setVisible(cover.instruments);
        instruments[i]->setVisible(!cover.instruments);
        headers[i]->setEnabled(!cover.instruments);
    }
}

/// The lettering of the panel grows with it, not with the desktop's texts.
void InstrumentPanel::letter(const WindowLayout& layout) {
    const bool own = layout.uiScale > layout.bodyScale;
    const QString sheet = own ? sheetFor(layout.bodyScale) : QString();
    if (sheet != styleSheet())
        setStyleSheet(sheet);
}

void InstrumentPanel::layOut(const WindowLayout& layout) {
    letter(layout);
    for (std::size_t i = 0; i < instruments.size(); ++i) {
        headers[i]->setGeometry(layout.headers[i]);
        instruments[i]->setGeometry(layout.instruments[i]);
        instruments[i]->setGround(groundAt(layout.instruments[i].topLeft()));
        layOutChannelLamp(i, layout.instruments[i]);
        plates[i]->setGeometry(layout.instruments[i]);
    }
    const std::array<QRect, 6> places = {layout.nav1, layout.nav2,      layout.adf,
                                         layout.dme,  layout.stopwatch, layout.autopilot};
    for (std::size_t i = 0; i < modules.size(); ++i) {
        modules[i]->setScale(layout.panelScale);
        modules[i]->setGeometry(places[i]);
    }
}

void InstrumentPanel::showModules(bool shown) {
    for (ModuleFrame* module : modules)
        module->setVisible(shown);
}

void InstrumentPanel::showChannelLamps() {
    const std::array<const PositionLinks*, 2> links = {&model.positions.links2(),
                                                       &model.positions.links3()};
    for (std::size_t i = 0; i < links.size(); ++i)
        channelLamps[i]->setLit(holdsAnObs(links[i]->position));
}

void InstrumentPanel::refresh() {
    coverInstruments();
    showChannelLamps();
    for (InstrumentHeader* header : headers)
        header->refresh();
    for (InstrumentView* instrument : instruments)
        instrument->refresh();
    for (ModuleFrame* module : modules)
        module->refresh();
}

/// The panel's own ground as a part at `place` sees it.
QBrush InstrumentPanel::groundAt(QPoint place) const {
    QBrush ground(look::downward(0, height(), look::panelTop, look::panelBottom));
    ground.setTransform(QTransform::fromTranslate(-place.x(), -place.y()));
    return ground;
}

void InstrumentPanel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(groundAt({}));
    painter.drawRoundedRect(rect(), look::panelRadius, look::panelRadius);
}

} // namespace tarnel
