#include "window/widgets/knob_travel.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace tarnel {

void turnTo(double wanted, const KnobTravel& travel, const std::function<void(int)>& step) {
    if (travel.step <= 0 || !step)
        return;
    double way = std::clamp(wanted, travel.least, travel.most) - travel.value;
    if (travel.round)
        way = std::remainder(way, travel.most - travel.least + travel.step);
    const int steps = static_cast<int>(std::lround(way / travel.step));
    if (!travel.oneByOne && steps != 0)
        return step(steps);
    for (int i = 0; i < std::abs(steps); ++i)
        step(steps > 0 ? 1 : -1);
}

} // namespace tarnel
