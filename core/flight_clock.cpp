#include "core/flight_clock.h"

#include "core/aircraft.h"
#include "core/rounding.h"

namespace tarnel {

namespace {

/// Adds a tick to `seconds`; at a full minute they go to 0. True then.
bool passesMinute(double& seconds) {
    seconds += simTimeStep;
    if (seconds <= 59.9999999)
        return false;
    seconds = 0;
    return true;
}

/// Counts a minute; at a full hour they go to 0. True then.
bool passesHour(std::int16_t& minutes) {
    if (++minutes <= 59)
        return false;
    minutes = 0;
    return true;
}

} // namespace

void FlightClock::resetStopwatch() {
    stopwatchSeconds = 0;
    stopwatchMinutes = 0;
}

void FlightClock::resetFlightTime() {
    flightSeconds = 0;
    flightMinutes = 0;
    flightHours = 0;
}

void FlightClock::tickStopwatch() {
    if (passesMinute(stopwatchSeconds))
        passesHour(stopwatchMinutes);
}

void FlightClock::tickFlightTime() {
    if (passesMinute(flightSeconds) && passesHour(flightMinutes))
        flightHours = toInt16(flightHours + 1);
}

} // namespace tarnel
