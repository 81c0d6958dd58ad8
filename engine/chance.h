#pragma once

#include "core/runtime_random.h"

#include <cstdint>
#include <functional>
#include <optional>

namespace tarnel {

/// What the simulation leaves to chance: a wind, the key of a file. A draw starts from the clock;
/// without one, from where the last one ended.
class Chance {
  public:
    using Clock = std::function<std::optional<std::uint32_t>()>;

    /// `seedOfClock` may be empty, and may be set later.
    explicit Chance(const Clock& seedOfClock) : clock(seedOfClock) {}

    /// The numbers of a new draw.
    RuntimeRandom& draw() {
        if (const auto seed = clock ? clock() : std::nullopt)
            random.seed(*seed);
        return random;
    }

  private:
    const Clock& clock;
    RuntimeRandom random;
};

} // namespace tarnel
