#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tarnel {

/// `value` as decimal text in the shortest form that reads back to the same bits, "." as the
/// decimal mark whatever the locale.
[[nodiscard]] std::string numberText(double value);
[[nodiscard]] std::string numberText(std::int64_t value);

/// The whole of `text` as a number; blanks and quotes around it and a leading "+" or "." are
/// accepted. Nothing if it is anything else.
[[nodiscard]] std::optional<double> parseNumber(std::string_view text);

/// `value` (0 or more) with leading zeros to at least `digits` digits.
[[nodiscard]] std::string zeroPadded(std::int64_t value, int digits);

} // namespace tarnel
