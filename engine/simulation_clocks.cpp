#include "engine/simulation_clocks.h"

namespace tarnel {

void SimulationClocks::tickStopwatch() {
    if (properties.c_ResetTimer == 0)
        clock.resetStopwatch();
    properties.c_ResetTimer.publish(1);
    if (properties.c_Timer_on_off == 1)
        clock.tickStopwatch();
    publishStopwatch();
}

void SimulationClocks::tickFlightTime(bool moves) {
    if (moves)
        clock.tickFlightTime();
    publishFlightTime();
}

void SimulationClocks::resetStopwatchAtRest() {
    if (properties.c_ResetTimer != 0 || !properties.stopped())
        return;
    clock.resetStopwatch();
    publishStopwatch();
    properties.c_ResetTimer.publish(1);
}

void SimulationClocks::resetFlightTime() {
    clock.resetFlightTime();
    publishFlightTime();
}

void SimulationClocks::restart() {
    clock = FlightClock{};
    publishStopwatch();
    publishFlightTime();
}

void SimulationClocks::goOnFromShown() {
    clock.stopwatchMinutes = properties.c_ApMinutes;
    clock.stopwatchSeconds = properties.c_ApSeconds;
    clock.flightHours = properties.c_ApHours2;
    clock.flightMinutes = properties.c_ApMinutes2;
    clock.flightSeconds = properties.c_ApSeconds2;
}

void SimulationClocks::publishStopwatch() {
    properties.c_ApMinutes.publish(clock.stopwatchMinutes);
    properties.c_ApSeconds.publish(static_cast<std::int16_t>(clock.stopwatchSeconds));
}

void SimulationClocks::publishFlightTime() {
    properties.c_ApHours2.publish(clock.flightHours);
    properties.c_ApMinutes2.publish(clock.flightMinutes);
    properties.c_ApSeconds2.publish(static_cast<std::int16_t>(clock.flightSeconds));
}

} // namespace tarnel
