#pragma once

#include "chart/chart_picture.h"
#include "core/aircraft.h"

#include <cstdint>

namespace tarnel {

/// Where the aircraft stands, and how, when its turns are foreseen.
struct TurnsAhead {
    Point airplane;     ///< twips
    double heading = 0; ///< degrees from north
    std::int16_t tas = 0;
    Wind wind;
    std::int16_t mapScaleTwips = 250;
    double rotation = 0; ///< degrees that the chart is turned by
};

/// Paints over the dots of the last time, and lays out the two turns at 3 degrees a second: thirty
/// dots of two seconds each to the right, then thirty to the left. The wind's part from north or
/// south goes the same way as the flight's, by design. A turned chart shows the same dots over the
/// same ground. A dot that leaves 16 bits is left out.
void drawTurnsAhead(ChartPicture& picture, const TurnsAhead& turns);

} // namespace tarnel
