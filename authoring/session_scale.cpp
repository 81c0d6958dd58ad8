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
    flown.reserve(rows.size());
    for (const FlightRow& row : rows)
        flown.push_back({row.latitude, row.longitude});
    return scaleOf(extentOf(flown));
}

SessionView sessionView(const std::vector<FlightRow>& rows, const AuthoredChart& chart) {
    constexpr std::int16_t aircraft = 1;
    const auto scaleAbout = [&](const GeoPosition& centre) {
        std::vector<GeoPosition> both; // the flight, and the flight mirrored at the centre
        for (const FlightRow& row : rows) {
            both.push_back({row.latitude, row.longitude});
            both.push_back(
                {2 * centre.latitude - row.latitude, 2 * centre.longitude - row.longitude});
        }
        return scaleOf(extentOf(both));
    };
    SessionView best{scaleAbout({rows.back().latitude, rows.back().longitude}), aircraft};
    for (std::size_t i = 0; i < slotCount; ++i) {
        const std::int16_t scale = scaleAbout(chart.position(static_cast<Slot>(i)));
        if (scale > best.scale)
            best = {scale, static_cast<std::int16_t>(aircraft + 1 + i)};
    }
    return best;
}

} // namespace tarnel
