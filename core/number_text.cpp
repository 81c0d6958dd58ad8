#include "core/number_text.h"

#include <charconv>
#include <cmath>

namespace tarnel {

namespace {

template <class Number>
std::string shortestText(Number value) {
    char buffer[64];
    const auto result = std::to_chars(buffer, buffer + sizeof buffer, value);
    return {buffer, result.ptr};
}

std::string_view withoutWrapping(std::string_view text) {
    constexpr std::string_view wrapping = " \t\r\"";
    const auto first = text.find_first_not_of(wrapping);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(wrapping) - first + 1);
}

} // namespace

std::string numberText(double value) {
    return shortestText(value);
}

std::string numberText(std::int64_t value) {
    return shortestText(value);
}

std::optional<double> parseNumber(std::string_view text) {
    text = withoutWrapping(text);
    if (text.size() > 1 && text.front() == '+' && text[1] != '-')
        text.remove_prefix(1);
    double value = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
    if (text.empty() || result.ec != std::errc() || result.ptr != text.data() + text.size() ||
        !std::isfinite(value))
        return std::nullopt;
    return value;
}

std::string zeroPadded(std::int64_t value, int digits) {
    std::string text = numberText(value);
    if (text.size() < static_cast<std::size_t>(digits))
        text.insert(0, static_cast<std::size_t>(digits) - text.size(), '0');
    return text;
}

} // namespace tarnel
