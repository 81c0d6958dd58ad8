#include "authoring/manoeuvres.h"

#include <cmath>

namespace tarnel {

void fly(Pilot& pilot, const Intercept& intercept) {
    const double side = pilot.offCourse(intercept.line);
    pilot.turnTo(intercept.line.course - std::copysign(intercept.angle, side));
    pilot.establishFrom(intercept.line, [](double) {});
}

} // namespace tarnel
