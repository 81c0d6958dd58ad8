#pragma once

#include "core/geo_position.h"

#include <string>

namespace tarnel {

/// A place as it is seen from a station: on a radial, degrees true from 0 up to 360, so many NM
/// away over the ground.
struct FromStation {
    double radial = 0;
    double distance = 0;

    /// NM to the right of the line over the station in the direction of `course`.
    [[nodiscard]] double crossTrack(double course) const;
    /// NM beyond the station in the direction of `course`; negative before it.
    [[nodiscard]] double alongTrack(double course) const;
};

/// By rhumb lines, as the program sails.
[[nodiscard]] FromStation fromStation(const GeoPosition& station, const GeoPosition& place);
[[nodiscard]] GeoPosition placeOn(const GeoPosition& station, const FromStation& seen);

/// Feet at which the simulated altitude stays, whatever the autopilot says.
constexpr double fixedAltitude = 6000.0;

/// NM through the air to a station that is `distance` NM away over the ground, from `altitude` feet
/// above it.
[[nodiscard]] double slantRange(double distance, double altitude);

/// `degrees` brought into 0 up to 360.
[[nodiscard]] double circle(double degrees);
/// From `from` to `to` the shorter way, -180 to 180; positive clockwise.
[[nodiscard]] double turnBetween(double from, double to);
/// The nearest whole degree, 0 to 359.
[[nodiscard]] int wholeDegrees(double degrees);
/// Three digits, 000 to 359.
[[nodiscard]] std::string threeDigits(double degrees);

} // namespace tarnel
