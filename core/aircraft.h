#pragma once

#include "core/chart_plot.h"
#include "core/geo_position.h"
#include "core/sailing.h"

#include <cstdint>

namespace tarnel {

/// Simulated seconds of one simulation tick.
constexpr double simTimeStep = 1.0 / 3;
/// A multiplier on every leg and every heading change.
constexpr double simTimeFactor = 1.0;

/// One constant vector for the whole chart.
struct Wind {
    double direction = 0;   ///< degrees that it comes from
    std::int16_t speed = 0; ///< knots
    bool operator==(const Wind&) const = default;
};

/// The aircraft: a point that is carried along its heading, without lift, drag or inertia.
struct Aircraft {
    SplitPosition position{{49, 0}, {11, 0}};
    double posLat =
        49.0; ///< plain position of the last conversion; the localizer's radial uses it as
    double posLon = 11.0;      ///< scratch, so it holds that station between the steps
    double aircraftLat = 49.0; ///< the position as last published: what everybody else reads
    double aircraftLon = 11.0;
    double trueHeading = 0;   ///< 0 up to 360
    std::int16_t tasUsed = 0; ///< knots, as taken by the last step
    std::int16_t turnRateUsed =
        0; ///< degrees a second, right is positive, as taken by the last step
    ChartPlace place{{3405, 3405}, {3405, 3405}};

    /// Turns the heading by one tick at `turnRateUsed`.
    void turn();

    /// Flies one tick: the air leg along the heading, then the wind leg, each a rhumb line.
    void fly(const Wind& wind);

    /// Puts the aircraft at `target`.
    void placeAt(const DeadReckoned& target);
    void placeAt(const SplitPosition& target) { placeAt({target, toPlain(target)}); }
    void placeAt(const GeoPosition& target) { placeAt({toSplit(target), target}); }

    [[nodiscard]] GeoPosition published() const { return {aircraftLat, aircraftLon}; }

  private:
    void flyLeg(double speed, double& course);
};

} // namespace tarnel
