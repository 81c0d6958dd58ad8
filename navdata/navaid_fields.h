#pragma once

#include "navdata/nav_data.h"

#include <string>
#include <string_view>

namespace tarnel {

// What the fields of a row have to hold, the same for all navigation data. Each function throws the
// `NavField` that it does not find.

/// Any finite number.
[[nodiscard]] double navNumber(std::string_view field, NavField expected);
[[nodiscard]] GeoPosition navPosition(std::string_view latitude, std::string_view longitude);
/// kHz, from a number that counts in `unit` kHz.
[[nodiscard]] double navFrequency(std::string_view field, double unit, NavaidKind kind);
/// A line of at most 80 characters; of a longer one the beginning.
[[nodiscard]] std::string navName(std::string_view field);
/// One to `longestStationText` characters; no others than a chart's file can hold.
[[nodiscard]] std::string navIdentifier(std::string_view field);

/// Leaves the row in `line` out, as it does not hold `expected`.
void leaveOut(NavData& data, int line, NavField expected);

} // namespace tarnel
