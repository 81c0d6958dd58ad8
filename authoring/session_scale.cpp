#include "authoring/session_scale.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace tarnel {

namespace {

constexpr std::int16_t aircraft = 1; ///< `c_MAPCenterSelect`

std::vector<GeoPosition> placesOf(const std::vector<FlightRow>& rows) {
    std::vector<GeoPosition> places;
    places.reserve(rows.size());
    for (const FlightRow& row : rows)
        places.push_back({row.latitude, row.longitude});
    return places;
}

/// Twips per NM at which the chart shows all places about a centre.
std::int16_t scaleAbout(const GeoPosition& centre, const std::vector<GeoPosition>& places) {
    std::vector<GeoPosition> both = places; // and mirrored at the centre
    for (const GeoPosition& place : places)
        both.push_back(
            {2 * centre.latitude - place.latitude, 2 * centre.longitude - place.longitude});
    return scaleOf(extentOf(both));
}

} // namespace

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

SessionView sessionView(const std::vector<FlightRow>& rows, const AuthoredChart& chart) {
    const std::vector<GeoPosition> flown = placesOf(rows);
    SessionView best{scaleAbout(flown.back(), flown), aircraft};
    for (std::size_t i = 0; i < slotCount; ++i) {
        const std::int16_t scale = scaleAbout(chart.position(static_cast<Slot>(i)), flown);
        if (scale > best.scale)
            best = {scale, static_cast<std::int16_t>(aircraft + 1 + i)};
    }
    return best;
}

SessionView questionView(const std::vector<FlightRow>& rows,
                         const std::vector<GeoPosition>& stations) {
    std::vector<GeoPosition> shown = placesOf(rows);
    const GeoPosition first = shown.front();
    const GeoPosition last = shown.back();
    shown.insert(shown.end(), stations.begin(), stations.end());
    return {std::min(scaleAbout(first, shown), scaleAbout(last, shown)), aircraft};
}

} // namespace tarnel
