#include "chart/trace_ahead.h"
#include "chart/trace_dots.h"
#include "core/run_time_error.h"
#include "engine/flight_scene.h"

namespace tarnel {

namespace {

/// `c_TraceEN`: wipes the trace with the next sample.
constexpr std::int16_t wipeTrace = 2;

} // namespace

RadialInputs FlightScene::radialInputs() const {
    const ReceiverProperties& receivers = given.panel;
    RadialInputs inputs;
    inputs.navFreq = {receivers.c_NAV1freq, receivers.c_NAV2freq};
    inputs.inst2 = {receivers.c_Inst2NAVselect, receivers.c_NAVRadI2 != 0, receivers.c_obsI2};
    inputs.inst3 = {receivers.c_Inst3NAVselect, receivers.c_NAVRadI3 != 0, receivers.c_obsI3};
    inputs.center = receivers.c_NAVRadCenter == on;
    inputs.border = receivers.c_NAVRadBorder == on;
    inputs.locCourse = receivers.c_LocCrs1;
    return inputs;
}

void FlightScene::redrawChart(const RadialInputs& inputs) {
    DrawNAVSymbols(picture, view, stations, rotation(), inputs);
}

void FlightScene::switchRadials() {
    hideRadials(picture, picture.radialsI2);
    hideRadials(picture, picture.radialsI3);
    redrawChart();
}

void FlightScene::relabelStation(Slot which) {
    const StationProperties& station = given.stationSlots.slot(which);
    ++changesOfStations;
    picture.surface.set(inSlot(picture.symbols, which).name.caption,
                        station.name.get() + "\n" + station.frequency.get());
}

void FlightScene::showStationSymbol(Slot which) {
    const StationProperties& station = given.stationSlots.slot(which);
    const bool stationOn = station.enabled != off;
    const bool dmeOn = hasDme(which) ? station.dmeEnabled != off : stationOn;
    showStation(picture, static_cast<std::size_t>(which), stationOn, dmeOn);
    if (which == Slot::localizer)
        showLocalizer(picture, stationOn);
}

void FlightScene::showAirplane() {
    MinatureAirplane(picture, aircraft.place.wide, airplaneOutline, given.chart.c_AirplaneEN == 1);
}

void FlightScene::turnSymbol() {
    airplaneOutline = RotateAirplaneSymbol(view.northUpMode ? aircraft.trueHeading : 0);
}

void FlightScene::switchAirplane() {
    showAirplane();
    redrawTrace();
}

void FlightScene::showWindLabel() {
    constexpr double gap = 300;
    const bool shown =
        (given.chart.c_SpeedVectorEN == 1 && windLabelOn) || given.chart.c_TraceAheadEN == 1;
    const bool visible = given.wind.told() && shown;
    picture.surface.show(picture.windLabel, visible);
    if (!visible)
        return;
    const Point airplane = aircraft.place.wide;
    picture.surface.place(picture.windLabel, {airplane.x + gap, airplane.y - gap});
    picture.surface.set(picture.windTold, given.wind.wind);
}

void FlightScene::showTurnsAhead() {
    if (given.chart.c_TraceAheadEN != 1) {
        picture.ahead.clear();
        return;
    }
    drawTurnsAhead(picture, {aircraft.place.wide, aircraft.trueHeading, aircraft.tasUsed,
                             given.wind.wind, view.plot.mapScaleTwips, rotation()});
}

void FlightScene::redrawTrace() {
    picture.trace.clear();
    if (traceShown() && given.tape.resumeMode != ResumeMode::clear)
        DrawReplayTrace(picture, view, given.tape.recording, aircraft.trueHeading);
}

void FlightScene::traceSample() {
    if (given.chart.c_TraceEN == wipeTrace)
        DeleteTrace(picture);
    drawFlownTrace();
}

void FlightScene::drawFlownTrace() {
    if (!traceShown())
        return;
    DeleteTrace(picture);
    DrawTrace2(picture, view, given.tape.recording, aircraft.trueHeading);
}

void FlightScene::showScale() {
    if (given.chart.c_MAPscale <= 0)
        throw RunTimeError(Cause::divisionByZero);
    view.plot.mapScaleTwips = given.chart.c_MAPscale;
    picture.surface.set(picture.milesPer500Twips, view.scaleLabelMiles());
}

} // namespace tarnel
