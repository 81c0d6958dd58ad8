#include "core/geo_position.h"

#include "core/rounding.h"

#include <cmath>

namespace tarnel {

double toPlain(const SplitAngle& angle) {
    return angle.degrees < 0 ? angle.degrees - angle.minutes / 60
                             : angle.degrees + angle.minutes / 60;
}

GeoPosition toPlain(const SplitPosition& position) {
    return {toPlain(position.latitude), toPlain(position.longitude)};
}

SplitAngle toSplit(double degrees) {
    const double whole = std::trunc(degrees);
    const double minutes = std::abs(degrees - whole) * 60;
    return {toInt16(whole), minutes == 60 ? 0 : minutes};
}

SplitPosition toSplit(const GeoPosition& position) {
    return {toSplit(position.latitude), toSplit(position.longitude)};
}

} // namespace tarnel
