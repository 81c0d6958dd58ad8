#pragma once

#include "authoring/situation.h"

#include <cstdint>

namespace tarnel {

/// Twips per NM at which the chart shows a flight, as large as it can be: whatever is flown lies
/// within four fifths of the paper around the middle of the flight, 125 to 1000.
[[nodiscard]] std::int16_t sessionScale(const std::vector<FlightRow>& rows);

} // namespace tarnel
