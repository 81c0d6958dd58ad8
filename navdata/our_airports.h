#pragma once

#include "navdata/nav_data.h"

#include <string_view>

namespace tarnel {

/// Read OurAirports' `navaids.csv` and `runways.csv`, UTF-8, as `nav_data.h` says. The columns are
/// found by their names in the first line, in any order; others are read over.
[[nodiscard]] NavData readOurNavaids(std::string_view text);
[[nodiscard]] NavData readOurRunways(std::string_view text);

} // namespace tarnel
