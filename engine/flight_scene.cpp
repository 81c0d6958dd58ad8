#include "engine/flight_scene.h"

#include "core/radios.h"

namespace tarnel {

void FlightScene::step(bool flies) {
    aircraft.tasUsed = given.panel.c_TAS;
    aircraft.turnRateUsed = given.panel.Turn_Rate;
    if (flies)
        moveAircraft();
    followHeadingUp(flies);
    layOutVectors();
    showWindLabel();
    showAirplane();
    measure();
    showTurnsAhead();
}

void FlightScene::moveAircraft() {
    aircraft.fly(given.wind.wind);
    view.placeAircraft(aircraft);
    if (view.northUpMode)
        view.plot.mapRef = view.mapCenter;
}

/// In the heading-up view the chart turns and slides under the aircraft, running or paused.
void FlightScene::followHeadingUp(bool moved) {
    if (view.northUpMode)
        return;
    view.placeAircraft(aircraft);
    redrawChart();
    if (moved)
        drawFlownTrace();
}

void FlightScene::layOutVectors() {
    const Wind& wind = given.wind.wind;
    const double heading = view.northUpMode ? aircraft.trueHeading : 0;
    const double windCourse = wind.direction - 180 - (view.northUpMode ? 0 : aircraft.trueHeading);
    speedVectors = layOutSpeedVectors(aircraft.place.wide, heading, aircraft.tasUsed, windCourse,
                                      wind.speed, view.plot.mapScaleTwips);
    drawSpeedVectors(picture, speedVectors, given.chart.c_SpeedVectorEN == 1);
}

void FlightScene::measure() {
    const RadioReadings readings =
        measureRadios(stations, aircraft,
                      {static_cast<double>(view.plot.mapScaleTwips), given.panel.c_Altitude,
                       speedVectors.groundSpeed, speedVectors.groundTrack});
    for (std::size_t i = 0; i < slotCount; ++i) {
        StationProperties& station = given.stationSlots.slot(i);
        station.radial.publish(readings.radial[i]);
        if (!hasDme(i))
            continue;
        station.dme.publish(readings.dme[i]);
        station.dmeGroundSpeed.publish(readings.dmeGroundSpeed[i]);
    }
}

void FlightScene::turnByTick() {
    if (aircraft.turnRateUsed == 0)
        return;
    const double before = aircraft.trueHeading;
    aircraft.turn();
    headingTurned(before);
}

void FlightScene::takeHeading(double heading) {
    const double before = aircraft.trueHeading;
    aircraft.trueHeading = heading;
    headingTurned(before);
}

void FlightScene::turnAircraft(double heading) {
    takeHeading(heading == 360 ? 0 : heading);
    refresh();
}

/// Publishes the heading. Under a turned chart the courses count from it: they stay where they are
/// on the earth. A locked replay brings its own.
void FlightScene::headingTurned(double before) {
    given.panel.c_HDG.publish(aircraft.trueHeading);
    turnSymbol();
    if (view.northUpMode || (given.tape.inReplay() && given.replay.c_replayInstLock == 1))
        return;
    const double turned = aircraft.trueHeading - before;
    given.panel.c_obsI2.publish(given.panel.c_obsI2 - turned);
    given.panel.c_obsI3.publish(given.panel.c_obsI3 - turned);
}

void FlightScene::flyByTick() {
    aircraft.tasUsed = given.panel.c_TAS;
    aircraft.turnRateUsed = given.panel.Turn_Rate;
    aircraft.fly(given.wind.wind);
    turnByTick();
}

void FlightScene::moveStation(Slot which, const SplitPosition& position) {
    inSlot(stations, which).position = position;
    ++changesOfStations;
    redrawChart();
    refresh();
}

} // namespace tarnel
