#include "authoring/manoeuvres.h"

#include <cmath>

namespace tarnel {

void fly(Pilot& pilot, const Intercept& intercept, const std::function<void(double lead)>& turns) {
    const CourseLine& line = intercept.line;
    const double side = pilot.offCourse(line);
    const FromStation place = pilot.from(line.station);
    const double heading = intercept.beyond
                               ? place.radial + 180 - std::copysign(*intercept.beyond, side)
                               : line.course - std::copysign(intercept.angle, side);
    pilot.turnTo(circle(heading));
    const bool inbound = place.alongTrack(line.course) < 0;
    pilot.establishFrom(line, [&](double lead) {
        if (inbound && pilot.from(line.station).alongTrack(line.course) > 0)
            throw LostPilot("an intercept that meets the course before the station");
        turns(lead);
    });
}

} // namespace tarnel
