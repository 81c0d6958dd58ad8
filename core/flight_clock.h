#pragma once

#include <cstdint>

namespace tarnel {

/// The stopwatch and the flight time. Both count simulated seconds and never read a clock.
struct FlightClock {
    double stopwatchSeconds = 0;
    std::int16_t stopwatchMinutes = 0; ///< 0 to 59, then 0 again: the stopwatch has no hours
    double flightSeconds = 0;
    std::int16_t flightMinutes = 0;
    std::int16_t flightHours = 0;

    void resetStopwatch();
    void resetFlightTime();
    /// Counts one simulation tick.
    void tickStopwatch();
    /// Counts one simulation tick. Throws the overflow error beyond 16-bit hours.
    void tickFlightTime();
};

} // namespace tarnel
