#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tarnel {

/// The number at the front of `text`, blanks before it allowed: a sign, digits with one ".", an
/// exponent. 0 if none stands there or it is past the range of a double; what follows is ignored,
/// so that a decimal comma ends the number.
[[nodiscard]] double Val(std::string_view text);

/// `number` as decimal text, with a blank in place of the sign if it is 0 or more.
[[nodiscard]] std::string Str(std::int64_t number);

} // namespace tarnel
