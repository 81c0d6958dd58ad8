#include "core/wind_triangle.h"

#include <cmath>
#include <numbers>

namespace tarnel {

WindTriangle windTriangle(const Wind& wind, double course, double tas) {
    constexpr double degree = std::numbers::pi / 180;
    WindTriangle triangle;
    const double angle = (wind.direction - course) * degree;
    triangle.head = wind.speed * std::cos(angle);
    triangle.fromRight = wind.speed * std::sin(angle);
    triangle.correction = std::asin(triangle.fromRight / tas) / degree;
    triangle.groundSpeed = tas * std::cos(triangle.correction * degree) - triangle.head;
    return triangle;
}

double outboundSeconds(const WindTriangle& inbound) {
    return std::round(60 * inbound.groundSpeed / (inbound.groundSpeed + 2 * inbound.head));
}

} // namespace tarnel
