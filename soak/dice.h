#pragma once

#include <cstdint>
#include <iterator>
#include <random>

namespace tarnel {

/// `Dice`: chance that falls the same way each time from one seed.
class Dice {
  public:
    explicit Dice(std::uint32_t seed) : engine(seed) {}

    /// 0 up to `count`, which is above 0.
    int below(int count) { return static_cast<int>(engine() % static_cast<unsigned>(count)); }
    /// `least` to `most`, both included.
    int between(int least, int most) { return least + below(most - least + 1); }
    bool once(int inTimes) { return below(inTimes) == 0; }
    /// One of those, of which there is at least one.
    template <class Choices>
    const auto& of(const Choices& choices) {
        return std::begin(choices)[below(static_cast<int>(std::size(choices)))];
    }
    std::uint32_t seed() { return static_cast<std::uint32_t>(engine()); }

  private:
    std::mt19937 engine;
};

} // namespace tarnel
