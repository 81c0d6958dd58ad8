#pragma once

#include "authoring/authored_chart.h"
#include "authoring/situation.h"

#include <cstdint>

namespace tarnel {

/// A part of the chart; degrees.
struct Extent {
    double south = 0;
    double north = 0;
    double west = 0;
    double east = 0;
};

/// What holds all places, one at least.
[[nodiscard]] Extent extentOf(const std::vector<GeoPosition>& places);

/// Twips per NM at which the chart shows an extent, as large as it can be within four fifths of the
/// paper; 125 to 1000.
[[nodiscard]] std::int16_t scaleOf(const Extent& extent);

/// How the chart of a session lies.
struct SessionView {
    std::int16_t scale = 0;  ///< twips per NM
    std::int16_t centre = 1; ///< `c_MAPCenterSelect`: the aircraft, or from 2 on a station
};

/// Shows a whole flight about the station, or about where it ends, that lets it be the largest.
[[nodiscard]] SessionView sessionView(const std::vector<FlightRow>& rows,
                                      const AuthoredChart& chart);

/// About the aircraft, as nothing else may tell where it is: shows the flight and the stations from
/// where it begins as from where it ends.
[[nodiscard]] SessionView questionView(const std::vector<FlightRow>& rows,
                                       const std::vector<GeoPosition>& stations);

} // namespace tarnel
