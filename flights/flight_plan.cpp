#include "flights/flight_plan.h"

#include <cmath>
#include <iterator>

namespace tarnel {

namespace {

constexpr std::string_view words[] = {"ADF", "RMI", "VOR", "HSI", "DG"};

} // namespace

int ticksUntil(double seconds) {
    constexpr double ticksPerSecond = 3;
    return static_cast<int>(std::ceil(seconds * ticksPerSecond));
}

std::string_view instrumentWord(std::int16_t display) {
    const bool known = display >= 1 && display <= static_cast<std::int16_t>(std::size(words));
    return known ? words[display - 1] : std::string_view();
}

std::optional<std::int16_t> displayOf(std::string_view word) {
    for (std::size_t i = 0; i < std::size(words); ++i)
        if (words[i] == word)
            return static_cast<std::int16_t>(i + 1);
    return std::nullopt;
}

} // namespace tarnel
