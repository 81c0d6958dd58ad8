#include "chart/trace_ahead.h"
#include "chart/trace_dots.h"
#include "core/number_text.h"
#include "core/radios.h"
#include "engine/user_control_2.h"

namespace tarnel {

void UserControl2::SimStep() {
    aircraft.tasUsed = c_TAS;
    aircraft.turnRateUsed = Turn_Rate;
    const bool moves = !redrawOnly && c_TimerEN == 1;
    if (moves)
        moveAircraft();
    redrawOnly = false;
    followHeadingUp(moves);

    const double heading = view.northUpMode ? aircraft.trueHeading : 0;
    const double windCourse = wind.direction - 180 - (view.northUpMode ? 0 : aircraft.trueHeading);
    speedVectors = layOutSpeedVectors(aircraft.place.wide, heading, aircraft.tasUsed, windCourse,
                                      wind.speed, view.plot.mapScaleTwips);
    drawSpeedVectors(picture, speedVectors, c_SpeedVectorEN == 1);
    showWindLabel();
    showAirplane();
    measure();
    showTurnsAhead();
}

void UserControl2::moveAircraft() {
    aircraft.fly(wind);
    view.placeAircraft(aircraft);
    if (view.northUpMode)
        view.plot.mapRef = view.mapCenter;
}

/// In the heading-up view the chart turns and slides under the aircraft, running or paused.
void UserControl2::followHeadingUp(bool moved) {
    if (view.northUpMode)
        return;
    view.placeAircraft(aircraft);
    redrawChart();
    if (moved && traceShown()) {
        DeleteTrace(picture);
        DrawTrace2(picture, view, recording, aircraft.trueHeading);
    }
}

/// The wind stands beside the airplane with the vectors or the turns ahead.
void UserControl2::showWindLabel() {
    constexpr double gap = 300;
    const bool told = windSource != WindSource::byChance || chanceWindTold;
    const bool visible = told && ((c_SpeedVectorEN == 1 && windLabelOn) || c_TraceAheadEN == 1);
    picture.surface.show(picture.windLabel, visible);
    if (!visible)
        return;
    const Point airplane = aircraft.place.wide;
    picture.surface.place(picture.windLabel, {airplane.x + gap, airplane.y - gap});
    picture.surface.set(picture.windTold, wind);
}

void UserControl2::showTurnsAhead() {
    if (c_TraceAheadEN != 1) {
        picture.ahead.clear();
        return;
    }
    drawTurnsAhead(picture, {aircraft.place.wide, aircraft.trueHeading, aircraft.tasUsed, wind,
                             view.plot.mapScaleTwips, rotation()});
}

void UserControl2::showAirplane() {
    MinatureAirplane(picture, aircraft.place.wide, airplaneOutline, c_AirplaneEN == 1);
}

void UserControl2::measure() {
    const RadioReadings readings =
        measureRadios(stations, aircraft,
                      {static_cast<double>(view.plot.mapScaleTwips), c_Altitude,
                       speedVectors.groundSpeed, speedVectors.groundTrack});
    for (std::size_t i = 0; i < slotCount; ++i) {
        slot(i).radial.publish(readings.radial[i]);
        if (!hasDme(i))
            continue;
        slot(i).dme.publish(readings.dme[i]);
        slot(i).dmeGroundSpeed.publish(readings.dmeGroundSpeed[i]);
    }
}

} // namespace tarnel
