#include "authoring/situation.h"

#include "core/sailing.h"

namespace tarnel {

GeoPosition secondBefore(const GeoPosition& place, const Situation& situation) {
    const auto moved = [](const GeoPosition& from, double knots, double course) {
        return knots == 0 ? from : DeadReckon(toSplit(from), knots / 3600, course).plain;
    };
    const GeoPosition still = moved(place, situation.tas, circle(situation.heading + 180));
    return moved(still, situation.wind.speed, situation.wind.direction);
}

} // namespace tarnel
