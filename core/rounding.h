#pragma once

#include <cstdint>

namespace tarnel {

/// `value` rounded to the nearest whole number, a tie to the even one.
[[nodiscard]] double roundToEven(double value);

/// `value` rounded to `digits` decimal places (0 to 9), a tie to the even digit.
[[nodiscard]] double roundTo(double value, int digits);

/// `value` rounded as by `roundToEven`. Throws the overflow error outside -32768 to 32767 and for
/// NaN.
[[nodiscard]] std::int16_t toInt16(double value);

/// `value` rounded as by `roundToEven`. Throws the overflow error outside the 32-bit range and for
/// NaN.
[[nodiscard]] std::int32_t toInt32(double value);

} // namespace tarnel
