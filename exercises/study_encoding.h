#pragma once

#include <string>
#include <string_view>

namespace tarnel {

/// The text of a study file in UTF-8: `bytes` without a byte-order mark if they are UTF-8 already,
/// otherwise read as Windows-1252, where the five bytes without a character give control
/// characters.
[[nodiscard]] std::string studyText(std::string_view bytes);

/// Where the character that starts at `at` of valid UTF-8 ends.
[[nodiscard]] std::size_t nextCharacter(std::string_view text, std::size_t at);

} // namespace tarnel
