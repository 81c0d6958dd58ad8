#pragma once

#include <string>
#include <string_view>

namespace tarnel {

/// `text` without the blanks, tabs and line ends at its ends.
[[nodiscard]] std::string_view trimmed(std::string_view text);

/// `text` with the letters A to Z in lower case; all others stay, in any locale.
[[nodiscard]] std::string lowerCase(std::string text);

} // namespace tarnel
