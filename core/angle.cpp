#include "core/angle.h"

#include <cmath>

namespace tarnel {

double intoCircle(double angle) {
    if (!std::isfinite(angle) || (angle >= 0 && angle <= 360))
        return angle;
    const double turned = std::fmod(angle, 360);
    if (turned == 0)
        return angle > 0 ? 360 : 0;
    return turned < 0 ? turned + 360 : turned;
}

} // namespace tarnel
