#include "core/station_geometry.h"

#include "core/sailing.h"

#include <cmath>
#include <numbers>

namespace tarnel {

namespace {

constexpr double degree = std::numbers::pi / 180;

} // namespace

double FromStation::crossTrack(double course) const {
    return distance * std::sin((radial - course) * degree);
}

double FromStation::alongTrack(double course) const {
    return distance * std::cos((radial - course) * degree);
}

FromStation fromStation(const GeoPosition& station, const GeoPosition& place) {
    const CourseDistance leg = CourseAndDistance(station, place);
    return {circle(leg.course), leg.distance};
}

GeoPosition placeOn(const GeoPosition& station, const FromStation& seen) {
    double course = seen.radial;
    return DeadReckon(toSplit(station), seen.distance, course).plain;
}

double slantRange(double distance, double altitude) {
    constexpr double feetPerMile = 6076.12;
    return std::hypot(distance, altitude / feetPerMile);
}

double circle(double degrees) {
    const double within = std::fmod(degrees, 360);
    return within < 0 ? within + 360 : within;
}

double turnBetween(double from, double to) {
    return std::remainder(to - from, 360);
}

int wholeDegrees(double degrees) {
    return static_cast<int>(std::lround(circle(degrees))) % 360;
}

std::string threeDigits(double degrees) {
    const std::string digits = std::to_string(wholeDegrees(degrees));
    return std::string(3 - digits.size(), '0') + digits;
}

} // namespace tarnel
