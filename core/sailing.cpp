#include "core/sailing.h"

#include "core/angle.h"

#include <cmath>

namespace tarnel {

namespace {

constexpr double pi = 3.14159265358979;
constexpr double eccentricity = 0.0818188;

/// Meridian arc from the equator in NM: A lat - B sin 2lat - C cos lat sin^3 lat.
constexpr double arcA = 60.00696365;
constexpr double arcB = 8.64152131;
constexpr double arcC = 0.0718603534;

/// Radius of curvature in NM: mean - variation cos 2lat.
constexpr double meanCurvature = 3438.153719;
constexpr double curvatureVariation = 17.29100354;
constexpr double curvatureThirdOrder = 11.52733569;

double radians(double degrees) {
    constexpr double perDegree = pi / 180;
    return degrees * perDegree;
}

/// `sine` is that of the latitude, which is in degrees.
double meridionalParts(double latitude, double sine) {
    const double eSin = eccentricity * sine;
    return (10800 / pi) * (std::log(std::tan((45 + latitude / 2) * pi / 180)) +
                           (eccentricity / 2) * std::log((1 - eSin) / (1 + eSin)));
}

double meridionalParts(double latitude) {
    return meridionalParts(latitude, std::sin(radians(latitude)));
}

/// How far a latitude is from the equator on the Mercator chart and on the earth.
struct FromEquator {
    double meridionalParts;
    double meridianArc; ///< NM
};

FromEquator fromEquator(double latitude) {
    const double phi = radians(latitude);
    const double sine = std::sin(phi);
    return {meridionalParts(latitude, sine),
            arcA * latitude - arcB * std::sin(2 * phi) - arcC * std::cos(phi) * sine * sine * sine};
}

/// Brings a course into the range that `DeadReckon` can use, see there.
void makeCourseUsable(double& course) {
    course = notAbove360(course);
    if (std::abs(course - 90) < 0.0000001)
        course = 90.000001;
    if (std::abs(course - 270) < 0.0000001)
        course = 270.000001;
}

} // namespace

CourseDistance CourseAndDistance(const GeoPosition& from, const GeoPosition& to) {
    double lat1 = from.latitude;
    const double lat2 = to.latitude;
    if (std::abs(lat2 - lat1) < 0.000001)
        lat1 += 0.0000001;
    const FromEquator start = fromEquator(lat1);
    const FromEquator end = fromEquator(lat2);
    const double dMP = end.meridionalParts - start.meridionalParts;
    const double dLo = 60 * (to.longitude - from.longitude);
    double course = dMP == 0 ? 90 : std::atan(dLo / dMP) * 180 / pi;
    if (lat1 > lat2)
        course += 180;
    return {course, (end.meridianArc - start.meridianArc) / std::cos(radians(course))};
}

DeadReckoned DeadReckon(const SplitPosition& from, double distance, double& course) {
    makeCourseUsable(course);
    const GeoPosition start = toPlain(from);
    const double cos2Phi = std::cos(2 * radians(start.latitude));
    const double sin2Phi = std::sin(2 * radians(start.latitude));
    const double D = meanCurvature - cos2Phi * curvatureVariation;
    const double a = sin2Phi * curvatureVariation / D;
    const double b = 2 * a * a - cos2Phi * curvatureThirdOrder / D;
    const double t = std::cos(radians(course)) * distance / D;
    const double dLat = (180 / pi) * (t - a * t * t + b * t * t * t);

    GeoPosition end;
    end.latitude = start.latitude + dLat;
    const double dMP = meridionalParts(end.latitude) - meridionalParts(start.latitude);
    end.longitude = start.longitude + (1.0 / 60) * dMP * std::tan(radians(course));
    return {toSplit(end), end};
}

} // namespace tarnel
