#pragma once

#include "core/flight_clock.h"
#include "engine/simulation_properties.h"

namespace tarnel {

/// Runs the stopwatch and the flight time, and publishes both.
class SimulationClocks {
  public:
    explicit SimulationClocks(ClockProperties& clockProperties) : properties(clockProperties) {}

    /// One tick of the stopwatch: `c_ResetTimer` of 0 resets it first, `c_Timer_on_off` runs it.
    void tickStopwatch();
    /// One tick of the flight time, which runs while the aircraft `moves`.
    void tickFlightTime(bool moves);
    /// Resets the stopwatch of a resting simulation at once if that is asked for.
    void resetStopwatchAtRest();
    void resetFlightTime();
    /// Both begin at 0.
    void restart();
    /// Both go on from what a replay shows.
    void goOnFromShown();

    FlightClock clock;

  private:
    void publishStopwatch();
    void publishFlightTime();

    ClockProperties& properties;
};

} // namespace tarnel
