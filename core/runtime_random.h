#pragma once

#include <cstdint>

namespace tarnel {

/// The generator that enciphered files depend on: linear congruential, 24 bits,
/// state := (state × 0x43FD43FD + 0xC39EC3) mod 2^24. Everything that is drawn by chance comes from
/// it, so that a seed fixes the draw.
class RuntimeRandom {
  public:
    /// The next value, 0 up to but not including 1, a multiple of 2^-24.
    double next();

    /// Starts over from a value derived from `argument`, which is negative: the same argument gives
    /// the same values. Returns the first of them.
    double restart(float argument);

    /// Starts over from `seed`, of which the lower 24 bits count.
    void seed(std::uint32_t seed) { state = seed & mask; }

    /// A whole number, 0 to `count` - 1.
    int below(int count) { return static_cast<int>(next() * count); }

  private:
    static constexpr std::uint32_t mask = 0xFFFFFF;
    std::uint32_t state = 0x50000;
};

} // namespace tarnel
