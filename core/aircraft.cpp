#include "core/aircraft.h"

#include "core/angle.h"

namespace tarnel {

void Aircraft::turn() {
    constexpr double ticksPerSecond = 3;
    trueHeading += (turnRateUsed / ticksPerSecond) * simTimeFactor;
    trueHeading = notNegative(below360(trueHeading));
}

void Aircraft::flyLeg(double speed, double& course) {
    const double distance = (1 / (3600 / simTimeStep)) * speed * simTimeFactor;
    const DeadReckoned reached = DeadReckon(position, distance, course);
    position = reached.split;
    posLat = reached.plain.latitude;
    posLon = reached.plain.longitude;
}

void Aircraft::fly(const Wind& wind) {
    flyLeg(tasUsed, trueHeading);
    double windCourse = wind.direction + 180;
    flyLeg(wind.speed, windCourse);
    aircraftLat = posLat;
    aircraftLon = posLon;
}

void Aircraft::placeAt(const DeadReckoned& target) {
    position = target.split;
    aircraftLat = posLat = target.plain.latitude;
    aircraftLon = posLon = target.plain.longitude;
}

} // namespace tarnel
