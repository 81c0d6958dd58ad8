#include "authoring/session_scale.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace tarnel {

std::int16_t sessionScale(const std::vector<FlightRow>& rows) {
    constexpr double paper = 6810 * 0.8; ///< twips
    constexpr double smallest = 125;
    constexpr double largest = 1000;
    const auto [south, north] =
        std::minmax_element(rows.begin(), rows.end(), [](const FlightRow& a, const FlightRow& b) {
            return a.latitude < b.latitude;
        });
    const auto [west, east] =
        std::minmax_element(rows.begin(), rows.end(), [](const FlightRow& a, const FlightRow& b) {
            return a.longitude < b.longitude;
        });
    const double high = (north->latitude - south->latitude) * 60;
    const double wide = (east->longitude - west->longitude) * 60 *
                        std::cos(north->latitude * std::numbers::pi / 180);
    return static_cast<std::int16_t>(
        std::clamp(paper / std::max({high, wide, 0.1}), smallest, largest));
}

} // namespace tarnel
