#include "shell/text_format.h"

namespace tarnel {

std::string filledIn(std::string_view text, std::initializer_list<std::string_view> values) {
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool placeholder =
            text[i] == '%' && i + 1 < text.size() && text[i + 1] >= '1' && text[i + 1] <= '9';
        const auto index = placeholder ? static_cast<std::size_t>(text[i + 1] - '1') : 0;
        if (!placeholder || index >= values.size()) {
            result += text[i];
            continue;
        }
        result += values.begin()[index];
        ++i;
    }
    return result;
}

} // namespace tarnel
