#pragma once

#include "core/aircraft.h"
#include "core/stations.h"

#include <array>
#include <cstdint>

namespace tarnel {

/// What the five stations give at the aircraft, whether or not they are switched on.
struct RadioReadings {
    /// The bearing of the aircraft from each station, degrees. Slots 1 to 4 are measured on the
    /// chart as it is turned, 0 up to 360; the localizer's on the earth, 360 allowed.
    std::array<double, slotCount> radial{};
    /// Slant range in NM with one decimal (ties to even); slots 1, 2 and 5 only.
    std::array<double, slotCount> dme{};
    /// The closing or opening speed along the line to the station in knots, never negative; slots
    /// 1, 2 and 5 only.
    std::array<std::int16_t, slotCount> dmeGroundSpeed{};
};

struct RadioInputs {
    double mapScaleTwips = 250;
    double altitude = 0; ///< feet
    std::int16_t groundSpeed = 0;
    std::int16_t groundTrack = 0;
};

/// Measures all five stations. Leaves the localizer's position in `posLat`, `posLon` of the
/// aircraft.
[[nodiscard]] RadioReadings measureRadios(const Stations& stations, Aircraft& aircraft,
                                          const RadioInputs& inputs);

} // namespace tarnel
