#include "core/plain_text.h"

#include <algorithm>

namespace tarnel {

std::string_view trimmed(std::string_view text) {
    constexpr std::string_view blanks = " \t\r\n";
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

std::string lowerCase(std::string text) {
    std::ranges::transform(text, text.begin(), [](char sign) {
        return sign >= 'A' && sign <= 'Z' ? static_cast<char>(sign - 'A' + 'a') : sign;
    });
    return text;
}

} // namespace tarnel
