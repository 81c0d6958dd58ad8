#pragma once

#include "core/geo_position.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tarnel {

/// Where somebody was at a moment, and what else is known of it.
struct TrackPoint {
    double seconds = 0; ///< since the start of its track
    GeoPosition position;
    std::optional<double> altitude; ///< feet
    std::optional<double> heading;  ///< degrees true, where the nose points
    std::optional<double> airspeed; ///< knots, true
    int line = 0;                   ///< of the file that it was read from; 0 if from none
};

/// A way through space and time, as other programs know it.
struct Track {
    std::string name;               ///< UTF-8
    std::int64_t start = 0;         ///< seconds since 1970 UTC
    std::vector<TrackPoint> points; ///< each later than the one before
};

constexpr double feetPerMetre = 1 / 0.3048;

} // namespace tarnel
