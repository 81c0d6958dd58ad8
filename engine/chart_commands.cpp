#include "core/rounding.h"
#include "core/run_time_error.h"
#include "engine/user_control_2.h"

namespace tarnel {

RadialInputs UserControl2::radialInputs() const {
    RadialInputs inputs;
    inputs.navFreq = {c_NAV1freq, c_NAV2freq};
    inputs.inst2 = {c_Inst2NAVselect, c_NAVRadI2 != 0, c_obsI2};
    inputs.inst3 = {c_Inst3NAVselect, c_NAVRadI3 != 0, c_obsI3};
    inputs.center = c_NAVRadCenter == on;
    inputs.border = c_NAVRadBorder == on;
    inputs.locCourse = c_LocCrs1;
    return inputs;
}

void UserControl2::redrawChart(const RadialInputs& inputs) {
    DrawNAVSymbols(picture, view, stations, rotation(), inputs);
}

void UserControl2::switchRadials() {
    hideRadials(picture, picture.radialsI2);
    hideRadials(picture, picture.radialsI3);
    redrawChart();
}

void UserControl2::switchAirplane() {
    showAirplane();
    redrawTrace();
}

void UserControl2::showScale() {
    if (c_MAPscale <= 0)
        throw RunTimeError(Cause::divisionByZero);
    view.plot.mapScaleTwips = c_MAPscale;
    picture.surface.set(picture.milesPer500Twips, view.scaleLabelMiles());
}

void UserControl2::MapCenterSelect() {
    view.plot.mapRefX = view.plot.mapRefY = toInt16(c_CenterTwips);
    view.MapCenterSelect(c_MAPCenterSelect, aircraftCentre(), stations);
}

/// What the chart is centred on when that is the aircraft.
SplitPosition UserControl2::aircraftCentre() const {
    return secretPlace ? view.mapCenter : toSplit(aircraft.published());
}

void UserControl2::MapScale() {
    MapCenterSelect();
    showScale();
    view.placeAircraft(aircraft);
    redrawChart();
    redrawTrace();
    refresh();
}

void UserControl2::resizeChart() {
    picture.surface.set(picture.size, 2 * c_CenterTwips);
    view.plot.mapRefX = view.plot.mapRefY = toInt16(c_CenterTwips);
    view.centreOn(aircraftCentre());
    showScale();
    view.placeAircraft(aircraft);
    redrawChart();
    redrawTrace();
    refresh();
}

void UserControl2::centreOnAircraft() {
    centreOn(aircraftCentre());
}

void UserControl2::centreOn(const SplitPosition& centre) {
    view.centreOn(centre);
    view.placeAircraft(aircraft);
    redrawChart();
    redrawTrace();
    refresh();
}

void UserControl2::showChart(const SplitPosition& centre, std::int16_t scale) {
    c_MAPscale.setIfChanged(scale);
    centreOn(centre);
}

void UserControl2::frameStations(std::span<const GeoPosition> aircraftPlaces) {
    std::vector<FramedPlace> places = framedStations(stations, c_LocCrs1);
    for (const GeoPosition& position : aircraftPlaces)
        places.push_back({position, framedAircraftRoom});
    const ChartFraming framing = framingOf(places, picture.size);
    showChart(framing.centre, framing.scale);
}

void UserControl2::resetView() {
    c_MAPnorthUP = 1;
    frameStations();
}

void UserControl2::switchEditing() {
    mouse.cancel();
    if (c_mapedit != 1 || !hasCommentMarks())
        return;
    recording.markComment(0, Recording::lastSample, noComment);
    comments.reuse();
    c_CurrentComment.setIfChanged({});
}

void UserControl2::placeStation(Slot which, ChartPoint point) {
    moveStation(which, view.plot.MapToGeo(point).split);
}

void UserControl2::moveStation(Slot which, const SplitPosition& position) {
    inSlot(stations, which).position = position;
    ++stationChanges;
    redrawChart();
    refresh();
    renewFirstSample();
}

void UserControl2::switchStation(Slot which, bool stationOn, bool dmeOn) {
    StationProperties& station = slot(which);
    station.dmeEnabled = dmeOn ? on : off;
    station.enabled = stationOn ? on : off;
    if (!stationOn && !dmeOn)
        inSlot(stations, which).buttonDown = false;
    refresh();
}

void UserControl2::switchView() {
    mouse.cancel();
    view.northUpMode = c_MAPnorthUP == 1;
    airplaneOutline = RotateAirplaneSymbol(view.northUpMode ? aircraft.trueHeading : 0);
    view.centreOn(aircraftCentre());
    showScale();
    view.placeAircraft(aircraft);
    redrawChart();
    refresh();
    redrawTrace();
}

void UserControl2::placeAircraft(ChartPoint point) {
    aircraft.place = {point, {static_cast<double>(point.x), static_cast<double>(point.y)}};
    aircraft.placeAt(view.plot.MapToGeo(point));
    aircraftPlaced();
}

/// As a hand's place of the aircraft, which need not lie on the paper.
void UserControl2::putAircraft(const SplitPosition& position) {
    aircraft.placeAt(position);
    view.placeAircraft(aircraft);
    aircraftPlaced();
}

void UserControl2::aircraftPlaced() {
    recording.giveUp();
    picture.trace.clear();
    resumeMode = ResumeMode::clear;
    reference.clear();
    referenceReading = {};
    c_CurrentComment.setIfChanged({});
    if (placedByHand)
        placedByHand();
    refresh();
}

void UserControl2::placeAircraft(const GeoPosition& position) {
    aircraft.placeAt(position);
    view.centreOn(aircraft.position);
    view.placeAircraft(aircraft);
    redrawChart();
    markFreshStart();
    redrawTrace();
    refresh();
}

void UserControl2::turnAircraft(double heading) {
    const double before = aircraft.trueHeading;
    aircraft.trueHeading = heading == 360 ? 0 : heading;
    headingTurned(before);
    refresh();
}

} // namespace tarnel
