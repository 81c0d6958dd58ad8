#pragma once

#include "navdata/nav_data.h"

#include <string_view>

namespace tarnel {

/// Whether the text begins as `nav.dat` does: the first line is "I" or "A", or empty, as in
/// FlightGear's, before one that begins with a digit.
[[nodiscard]] bool isNavDat(std::string_view text);

/// Reads such a text, which is UTF-8. Rows are read by position, as the format of their version has
/// it: from 1100 on the airport or "ENRT" and a region stand behind the identifier, and a
/// localizer's true course has 360 times its magnetic one added to it.
[[nodiscard]] NavData readNavDat(std::string_view text);

} // namespace tarnel
