#pragma once

#include <cstdint>

namespace tarnel {

/// The numbers of `c_WindSetEN`: what is asked for, and what a replay tells of the wind that it has
/// brought. Others do nothing.
enum class WindRequest : std::int16_t {
    none,
    drawn,     ///< with the mouse
    byChance,  ///< another one
    lastAgain, ///< the last one that was set by hand
    recorded,
    recordedWithZero, ///< the same, with a part that is zero
};

} // namespace tarnel
