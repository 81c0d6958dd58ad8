#include "window/frame/instrument_panel.h"

#include "window/dials/channel_lamp.h"
#include "window/dials/instrument_header.h"
#include "window/dials/instrument_view.h"
#include "window/radios/autopilot_module.h"
#include "window/radios/dme_module.h"
#include "window/radios/nav_module.h"
#include "window/radios/stopwatch_module.h"
#include "window/widgets/cover_plate.h"
#include "window/widgets/panel_look.h"

#include <QPainter>

namespace tarnel {

InstrumentPanel::InstrumentPanel(Form1& owner, FormBinding& binding, PictureStore& pictures,
                                 const ModelGuard& guard, QWidget* parent)
    : QWidget(parent), form(owner) {
    setObjectName(QStringLiteral("InstrumentPanel"));
    makeInstruments(binding, pictures, guard);
    makeModules(binding, pictures, guard);
}

void InstrumentPanel::makeInstruments(FormBinding& binding, PictureStore& pictures,
                                      const ModelGuard& guard) {
    const std::array<HeaderControls, 2> controls = {
        HeaderControls{form.positions.links2(), form.inst2Small, form.inst2Large},
        HeaderControls{form.positions.links3(), form.inst3Small, form.inst3Large}};
    for (std::size_t i = 0; i < controls.size(); ++i) {
        headers[i] = new InstrumentHeader(form, controls[i], binding, this);
        instruments[i] =
            new InstrumentView(controls[i].links.position.instrument, pictures, form.texts, this);
        instruments[i]->guard = guard;
        instruments[i]->stations = [this, &position = controls[i].links.position] {
            return stationsOf(position);
        };
        instruments[i]->setObjectName(QStringLiteral("UserControl13_%1").arg(i));
        channelLamps[i] = new ChannelLamp(this);
        binding.bind(controls[i].links.channelButton, *channelLamps[i]);
        plates[i] = new CoverPlate(form.texts, this);
    }
    binding.follow([this] { coverInstruments(); });
}

SpokenStations InstrumentPanel::stationsOf(const InstrumentPosition& position) const {
    const NeedleSources needles = needleSources(position, form.positions.feedSources());
    return {spokenStation(needles.first, form.UserControl11, form.texts),
            spokenStation(needles.second, form.UserControl11, form.texts)};
}

void InstrumentPanel::makeModules(FormBinding& binding, PictureStore& pictures,
                                  const ModelGuard& guard) {
    nav1 = new NavModule(form.NAVControlFace1, nav1Texts, pictures, form.texts, this);
    nav2 = new NavModule(form.NAVControlFace2, nav2Texts, pictures, form.texts, this);
    adf = new NavModule(form.ADFControlFace1, adfTexts, pictures, form.texts, this);
    dme = new DmeModule(form.DMEControlFace1, pictures, form.texts, this);
    dme->station = [this] {
        return spokenStation(dmeSource(form.DMEControlFace1, form.UserControl11),
                             form.UserControl11, form.texts);
    };
    stopwatch = new StopwatchModule(form.tvsmtimer1, pictures, form.texts, this);
    binding.bind(form.stopwatchStartButton, stopwatch->startButton());
    binding.bind(form.stopwatchResetButton, stopwatch->resetButton());
    autopilot = new AutopilotModule(form.APControlFace1, pictures, form.texts, this);
    modules = {nav1, nav2, adf, dme, stopwatch, autopilot};
    for (ModuleFrame* module : modules)
        module->guard = guard;
    nav1->setObjectName(QStringLiteral("NAVControlFace1"));
    nav2->setObjectName(QStringLiteral("NAVControlFace2"));
    adf->setObjectName(QStringLiteral("ADFControlFace1"));
    dme->setObjectName(QStringLiteral("DMEControlFace1"));
    stopwatch->setObjectName(QStringLiteral("tvsmtimer1"));
    autopilot->setObjectName(QStringLiteral("APControlFace1"));
}

void InstrumentPanel::layOutChannelLamp(std::size_t position, const QRect& bezel) {
    const double side = bezel.width();
    const double inset = look::bezel::channelButtonInset * side;
    channelLamps[position]->setGeometry(QRectF(bezel.left() + inset, bezel.top() + inset,
                                               look::bezel::channelButtonWidth * side,
                                               look::bezel::channelButtonHeight * side)
                                            .toRect());
    channelLamps[position]->raise();
}

/// Under a plate nothing is to be reached by keyboard either.
void InstrumentPanel::coverInstruments() {
    const bool covered = !form.instruments.visible();
    for (std::size_t i = 0; i < plates.size(); ++i) {
        plates[i]->setReason(textOf(form.texts, form.exercise.cover().reason));
        plates[i]->setVisible(covered);
        instruments[i]->setVisible(!covered);
        headers[i]->setEnabled(!covered);
    }
}

void InstrumentPanel::layOut(const WindowLayout& layout) {
    for (std::size_t i = 0; i < instruments.size(); ++i) {
        headers[i]->setGeometry(layout.headers[i]);
        instruments[i]->setGeometry(layout.instruments[i]);
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

void InstrumentPanel::showChannelLamps() {
    const std::array<const PositionLinks*, 2> links = {&form.positions.links2(),
                                                       &form.positions.links3()};
    for (std::size_t i = 0; i < links.size(); ++i)
        channelLamps[i]->setLit(holdsAnObs(links[i]->position));
}

void InstrumentPanel::refresh() {
    showChannelLamps();
    for (InstrumentHeader* header : headers)
        header->refresh();
    for (InstrumentView* instrument : instruments)
        instrument->refresh();
    for (ModuleFrame* module : modules)
        module->refresh();
}

void InstrumentPanel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(look::downward(0, height(), look::panelTop, look::panelBottom));
    painter.drawRoundedRect(rect(), look::panelRadius, look::panelRadius);
}

} // namespace tarnel
