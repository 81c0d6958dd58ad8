#include "shell/chart_display.h"

#include <algorithm>
#include <iterator>
#include <span>

namespace tarnel {

ChartDisplay::ChartDisplay(UserControl2& simulation, TrainerControls& controls,
                           const StringTable& table)
    : sim(simulation), strip(controls), texts(table) {
    ChartPage& page = strip.chartPage;
    page.centre.onClick = [this] { sim.centreOnAircraft(); };
    page.reset.onClick = [this] { sim.resetView(); };
    page.trace.onClick = [this] { applyTrace(); };
    page.vectors.onClick = [this] { applyVectors(); };
    for (CheckBox* hide : {&page.hide, &strip.replayPage.hide})
        hide->onClick = [this, hide] { setHidden(hide->value() == 1); };
    strip.radialCycleButton.onClick = [this] { cycleRadialLines(); };
}

void ChartDisplay::setHidden(bool hidden) {
    hideOn = hidden;
    strip.replayPage.hide.show(hidden ? 1 : 0);
    strip.chartPage.hide.show(hidden ? 1 : 0);
    strip.hidePanel.setText(std::string(texts[hidden ? Text::panelHideOn : Text::panelHideOff]));
    sim.c_AirplaneEN.setIfChanged(hidden ? 0 : 1);
    sim.c_TraceEN.setIfChanged(!hidden && strip.chartPage.trace.value() == 1 ? 1 : 0);
    applyVectors();
}

void ChartDisplay::applyTrace() {
    const bool traced = strip.chartPage.trace.value() == 1;
    strip.tracePanel.setText(std::string(texts[traced ? Text::panelTraceOn : Text::panelTraceOff]));
    if (!hideOn)
        sim.c_TraceEN = traced ? 1 : 0;
}

/// A partly ticked box asks for the turns ahead.
ChartDisplay::Vectors ChartDisplay::vectorsAsked() const {
    return static_cast<Vectors>(strip.chartPage.vectors.value());
}

void ChartDisplay::stepVectors() {
    CheckBox& box = strip.chartPage.vectors;
    if (box.enabled())
        box.set((box.value() + 1) % 3);
}

void ChartDisplay::applyVectors() {
    static constexpr Text captions[] = {Text::panelVectorsOff, Text::panelVectorsType1,
                                        Text::panelVectorsType2};
    const Vectors shown = hideOn ? Vectors::none : vectorsAsked();
    sim.c_SpeedVectorEN.setIfChanged(shown == Vectors::windTriangle ? 1 : 0);
    sim.c_TraceAheadEN.setIfChanged(shown == Vectors::turnsAhead ? 1 : 0);
    strip.vectorsPanel.setText(std::string(texts[captions[static_cast<std::size_t>(shown)]]));
}

void ChartDisplay::cycleRadialLines() {
    radialCycle = radialCycle >= 2 ? std::int16_t{0} : static_cast<std::int16_t>(radialCycle + 1);
    sim.c_NAVRadCenter = radialCycle == 0 ? on : off;
    sim.c_NAVRadBorder = radialCycle == 1 ? on : off;
}

void ChartDisplay::stepScale(int steps) {
    const std::span offered(MapView::offeredScales);
    std::int16_t next = scale();
    for (; steps > 0 && next < offered.back(); --steps)
        next = *std::upper_bound(offered.begin(), offered.end(), next);
    for (; steps < 0 && next > offered.front(); ++steps)
        next = *std::prev(std::lower_bound(offered.begin(), offered.end(), next));
    setScale(next);
}

void ChartDisplay::setScale(std::int16_t twipsPerMile) {
    sim.c_MAPscale.setIfChanged(twipsPerMile);
}

void ChartDisplay::setNorthUp(bool northUp) {
    if (northUp || mayTurnHeadingUp())
        sim.c_MAPnorthUP.setIfChanged(northUp ? 1 : 0);
}

} // namespace tarnel
