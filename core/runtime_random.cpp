#include "core/runtime_random.h"

#include <bit>

namespace tarnel {

double RuntimeRandom::next() {
    constexpr std::uint32_t multiplier = 0x43FD43FD;
    constexpr std::uint32_t increment = 0xC39EC3;
    constexpr double range = 0x1000000;
    state = (state * multiplier + increment) & mask;
    return state / range;
}

double RuntimeRandom::restart(float argument) {
    const auto bits = std::bit_cast<std::uint32_t>(argument);
    seed(bits + (bits >> 24));
    return next();
}

} // namespace tarnel
