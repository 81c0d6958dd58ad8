#include "core/wind_turn.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace tarnel {

std::vector<PlaneOffset> turnInWind(const Wind& wind, double tas, double heading, double change) {
    constexpr double degree = std::numbers::pi / 180;
    constexpr double secondsPerHour = 3600;
    const double perTick = tas * simTimeStep / secondsPerHour;
    const double windPerTick = wind.speed * simTimeStep / secondsPerHour;
    const PlaneOffset drift{windPerTick * std::sin(wind.direction * degree),
                            windPerTick * std::cos(wind.direction * degree)};
    std::vector<PlaneOffset> way;
    PlaneOffset place;
    const auto fly = [&](double flown) {
        place.east += perTick * std::sin(flown * degree) - drift.east;
        place.north += perTick * std::cos(flown * degree) - drift.north;
        way.push_back(place);
    };
    fly(heading);
    double left = std::abs(change);
    while (left > 0.01) {
        const double turned = std::min(left, (left > 5 ? 3 : 1) * simTimeStep);
        heading += std::copysign(turned, change);
        left -= turned;
        fly(heading);
    }
    return way;
}

} // namespace tarnel
