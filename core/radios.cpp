#include "core/radios.h"

#include "core/angle.h"
#include "core/rounding.h"

#include <cmath>

namespace tarnel {

namespace {

constexpr double nauticalMilesPerThousandFeet = 0.16447;

double slantRange(double altitude, double chartDistance) {
    const double height = altitude * nauticalMilesPerThousandFeet / 1000;
    return roundTo(std::sqrt(height * height + chartDistance * chartDistance), 1);
}

std::int16_t speedAlongLine(const RadioInputs& inputs, double bearingToStation) {
    const double angle = std::abs(inputs.groundTrack - bearingToStation) * planePi / 180;
    return toInt16(std::abs(inputs.groundSpeed * std::cos(angle)));
}

double localizerRadial(const Station& localizer, Aircraft& aircraft) {
    const GeoPosition station = toPlain(localizer.position);
    const double course = CourseAndDistance(toPlain(aircraft.position), station).course;
    aircraft.posLat = station.latitude;
    aircraft.posLon = station.longitude;
    return notAbove360(notNegative(course) + 180);
}

} // namespace

RadioReadings measureRadios(const Stations& stations, Aircraft& aircraft,
                            const RadioInputs& inputs) {
    constexpr auto localizer = static_cast<std::size_t>(Slot::localizer);
    RadioReadings readings;
    for (std::size_t slot = 0; slot < slotCount; ++slot) {
        const double dx = aircraft.place.wide.x - stations[slot].place.wide.x;
        const double dy = stations[slot].place.wide.y - aircraft.place.wide.y;
        const Polar fromStation = polarOf(dx, dy, inputs.mapScaleTwips);
        readings.radial[slot] = fromStation.course;
        if (!hasDme(slot))
            continue;
        readings.dme[slot] = slantRange(inputs.altitude, fromStation.distance);
        readings.dmeGroundSpeed[slot] =
            speedAlongLine(inputs, polarOf(-dx, -dy, inputs.mapScaleTwips).course);
    }
    readings.radial[localizer] = localizerRadial(stations[localizer], aircraft);
    return readings;
}

} // namespace tarnel
