#pragma once

#include "core/aircraft.h"
#include "core/station_geometry.h"
#include "debrief/task.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>
#include <vector>

namespace tarnel {

/// A flight as a test writes it: an aircraft over a plane around VOR 1, a sample a step.
class FlownFlight {
  public:
    double east; ///< NM from VOR 1
    double north;
    double heading; ///< degrees
    double tas = 120;
    double rate = 3; ///< of turns, degrees a second
    Wind wind;
    double course = 0; ///< on the dial that shows VOR 1
    std::vector<Sample> samples;

    FlownFlight(double eastOf, double northOf, double flown)
        : east(eastOf), north(northOf), heading(flown) {}

    void step() {
        const GeoPosition station{48.35, 11.8};
        Sample sample;
        const GeoPosition place =
            placeOn(station, {circle(std::atan2(east, north) / degree), std::hypot(east, north)});
        sample.traceLat = place.latitude;
        sample.traceLon = place.longitude;
        sample.traceHeading = circle(heading);
        sample.traceTAS = static_cast<std::int16_t>(tas);
        sample.traceWindDirection = static_cast<std::int16_t>(wind.direction);
        sample.traceWindSpeed = wind.speed;
        sample.traceStations.fill({45, 5});
        sample.traceStations[0] = station;
        sample.traceInst3 = 4; // an HSI behind receiver 1 on VOR 1
        sample.traceInst3NAVselect = 1;
        sample.traceObsI3 = course;
        samples.push_back(sample);
        const double hours = stepSeconds / 3600;
        east += hours *
                (tas * std::sin(heading * degree) - wind.speed * std::sin(wind.direction * degree));
        north += hours * (tas * std::cos(heading * degree) -
                          wind.speed * std::cos(wind.direction * degree));
    }
    FlownFlight& fly(double seconds) {
        for (double flown = 0; flown < seconds - stepSeconds / 2; flown += stepSeconds)
            step();
        return *this;
    }
    /// By so many degrees, right is positive.
    FlownFlight& turn(double degrees) {
        for (double left = std::abs(degrees); left > 1e-9;) {
            const double turned = std::min(left, rate * stepSeconds);
            heading += std::copysign(turned, degrees);
            left -= turned;
            step();
        }
        return *this;
    }
    /// The shorter way.
    FlownFlight& turnTo(double degrees) { return turn(turnBetween(heading, degrees)); }
    template <class Reached>
    FlownFlight& until(Reached reached) {
        while (!reached() && samples.size() < 6000)
            step();
        return *this;
    }

  private:
    static constexpr double degree = std::numbers::pi / 180;
    static constexpr double stepSeconds = 4.0 / 3;
};

} // namespace tarnel
