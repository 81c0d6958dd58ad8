#include "authoring/session_scale.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace tarnel {

Extent extentOf(const std::vector<GeoPosition>& places) {
    const GeoPosition& first = places.front();
    Extent extent{first.latitude, first.latitude, first.longitude, first.longitude};
    for (const GeoPosition& place : places) {
        extent.south = std::min(extent.south, place.latitude);
        extent.north = std::max(extent.north, place.latitude);
        extent.west = std::min(extent.west, place.longitude);
        extent.east = std::max(extent.east, place.longitude);
    }
    return extent;
}

std::int16_t scaleOf(const Extent& extent) {
    constexpr double paper = 6810 * 0.8; ///< twips
    constexpr double smallest = 125;
    constexpr double largest = 1000;
    const double high = (extent.north - extent.south) * 60;
    const double wide =
        (extent.east - extent.west) * 60 * std::cos(extent.north * std::numbers::pi / 180);
    return static_cast<std::int16_t>(
        std::clamp(paper / std::max({high, wide, 0.1}), smallest, largest));
}

std::int16_t sessionScale(const std::vector<FlightRow>& rows) {
    std::vector<GeoPosition> flown;
    for (const FlightRow& row : rows)
        flown.push_back({row.latitude, row.longitude});
    return scaleOf(extentOf(flown));
}

} // namespace tarnel
