#pragma once

#include "flights/flight_csv.h"

#include <cstddef>
#include <vector>

namespace tarnel {

/// A turn in the rows of a flight, from the last row before it to the first one behind it.
struct FlownTurn {
    std::size_t begin = 0;
    std::size_t end = 0;
    double degrees = 0; ///< positive to the right; more than 180 for a long way round

    [[nodiscard]] const char* side() const { return degrees < 0 ? "left" : "right"; }
};

/// In their order. A turn that goes over into the other direction counts as two.
[[nodiscard]] std::vector<FlownTurn> turnsIn(const std::vector<FlightRow>& rows);

} // namespace tarnel
