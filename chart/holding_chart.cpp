#include "chart/holding_chart.h"

#include "core/sailing.h"

#include <algorithm>
#include <limits>
#include <numbers>

namespace tarnel {

namespace {

constexpr double shareOfChart = 1.0 / 3;
/// Of the scale; a flight that stands still has a holding without length.
constexpr double largestHoldingScale = 2000;

double nearestMiles(const Recording& flight, int samples, const SplitPosition& station) {
    double nearest = std::numeric_limits<double>::infinity();
    for (int i = 1; i <= samples; ++i) {
        const Sample& sample = flight.at(i);
        const GeoPosition aircraft{sample.traceLat, sample.traceLon};
        nearest = std::min(nearest, CourseAndDistance(aircraft, toPlain(station)).distance);
    }
    return nearest;
}

} // namespace

double holdingLength(double knots) {
    const double leg = knots / 60;
    return leg * (1 + 2 / std::numbers::pi); // half a turn takes a minute
}

HoldingChart holdingChart(const Recording& flight, int samples, const Stations& stations,
                          double size) {
    const auto nearer = [&](const Station& left, const Station& right) {
        return nearestMiles(flight, samples, left.position) <
               nearestMiles(flight, samples, right.position);
    };
    const Station& fix = *std::ranges::min_element(stations, nearer);
    const double miles = holdingLength(flight.at(1).traceTAS);
    return {fix.position,
            static_cast<std::int16_t>(std::min(largestHoldingScale, size * shareOfChart / miles))};
}

} // namespace tarnel
