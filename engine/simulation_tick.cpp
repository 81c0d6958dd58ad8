#include "engine/user_control_2.h"

namespace tarnel {

void UserControl2::Timer1() {
    if (c_ResetTimer == 0)
        clock.resetStopwatch();
    c_ResetTimer.publish(1);
    if (c_Timer_on_off == 1)
        clock.tickStopwatch();
    publishStopwatch();

    if (c_TAS > 0)
        clock.tickFlightTime();
    publishFlightTime();
    turnByTick();
    if (recording.tickIsSample())
        recordSample();
    SimStep();
}

void UserControl2::publishStopwatch() {
    c_ApMinutes.publish(clock.stopwatchMinutes);
    c_ApSeconds.publish(static_cast<std::int16_t>(clock.stopwatchSeconds));
}

void UserControl2::publishFlightTime() {
    c_ApHours2.publish(clock.flightHours);
    c_ApMinutes2.publish(clock.flightMinutes);
    c_ApSeconds2.publish(static_cast<std::int16_t>(clock.flightSeconds));
}

void UserControl2::turnByTick() {
    if (aircraft.turnRateUsed == 0)
        return;
    const double before = aircraft.trueHeading;
    aircraft.turn();
    headingTurned(before);
}

/// Publishes the heading. Under a turned chart the courses count from it: they stay where they are
/// on the earth. A locked replay brings its own.
void UserControl2::headingTurned(double before) {
    c_HDG.publish(aircraft.trueHeading);
    airplaneOutline = RotateAirplaneSymbol(view.northUpMode ? aircraft.trueHeading : 0);
    if (view.northUpMode || (inReplay() && c_replayInstLock == 1))
        return;
    const double turned = aircraft.trueHeading - before;
    c_obsI2.publish(c_obsI2 - turned);
    c_obsI3.publish(c_obsI3 - turned);
}

} // namespace tarnel
