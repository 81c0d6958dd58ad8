#include "core/plane_geometry.h"

#include "core/angle.h"
#include "core/rounding.h"

#include <cmath>

namespace tarnel {

Polar polarOf(double dx, double dy, double twipsPerUnit) {
    if (dx == 0)
        return {dy < 0 ? 180.0 : 0.0, std::abs(dy) / twipsPerUnit};
    const double a = std::atan(dy / dx) * (180 / planePi);
    const double distance = (std::abs(dx) / std::cos(a / (180 / planePi))) / twipsPerUnit;
    if (dx > 0)
        return {dy >= 0 ? 90 - a : std::abs(a) + 90, distance};
    return {dy >= 0 ? std::abs(a) + 270 : 270 - a, distance};
}

Polar MapToPolar(double twipsPerUnit, ChartPoint from, ChartPoint to) {
    return polarOf(toInt16(to.x - from.x), toInt16(to.y - from.y), twipsPerUnit);
}

Point chartOffset(double course, double distance, double twipsPerUnit) {
    const double A = notAbove360((360 - course) + 90) / (180 / planePi);
    return {roundToEven(std::cos(A) * distance * twipsPerUnit),
            roundToEven(-distance * std::sin(A) * twipsPerUnit)};
}

Point RotatePoint(double angle, Point centre, Point point) {
    const double a = angle * planePi / 180;
    const double dx = point.x - centre.x;
    const double dy = point.y - centre.y;
    return {centre.x + dx * std::cos(a) - dy * std::sin(a),
            centre.y + dy * std::cos(a) + dx * std::sin(a)};
}

Point RotateVector(double angle, Point centre, Point point) {
    const double a = angle * planePi / 180;
    const double dx = point.x - centre.x;
    const double dy = point.y - centre.y;
    return {centre.x + dx * std::cos(a) + dy * std::sin(a),
            centre.y + dy * std::cos(a) + dx * std::sin(a)};
}

AirplaneOutline RotateAirplaneSymbol(double angle) {
    AirplaneOutline outline;
    for (Point* point : {&outline.nose, &outline.tail, &outline.leftWing, &outline.rightWing,
                         &outline.leftTailplane, &outline.rightTailplane})
        *point = RotatePoint(angle, {0, 0}, *point);
    return outline;
}

} // namespace tarnel
