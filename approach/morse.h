#pragma once

#include <string>

namespace tarnel {

/// The Morse code of a capital letter or digit, of "." and "-"; empty for any other character.
[[nodiscard]] const char* morseCode(char character);

/// The codes of an identifier, a blank between two characters.
[[nodiscard]] std::string morseCode(const std::string& identifier);

} // namespace tarnel
