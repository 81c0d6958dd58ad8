#pragma once

#include <functional>

namespace tarnel {

/// Where a knob stands and how far it goes, for who sets it by a number. All noughts where that is
/// covered or switched off.
struct KnobTravel {
    double value = 0;
    double least = 0;
    double most = 0;
    double step = 0;       ///< what one step of the hand changes
    bool round = false;    ///< behind the most comes the least
    bool oneByOne = false; ///< a call steps once, whatever the number
};

/// Turns a knob by its own `step` to the place nearest to `wanted`, the shorter way round; what
/// lies beyond its ends stops there.
void turnTo(double wanted, const KnobTravel& travel, const std::function<void(int)>& step);

} // namespace tarnel
