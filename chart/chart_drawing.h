#pragma once

#include "chart/chart_picture.h"
#include "chart/map_view.h"
#include "core/plane_geometry.h"
#include "core/speed_vectors.h"
#include "core/stations.h"

#include <array>
#include <cstdint>

namespace tarnel {

/// One instrument as the chart sees it.
struct RadialSettings {
    std::int16_t navSelect = 1; ///< the receiver it follows, 1 or 2
    bool shown = false;         ///< whether its radial is drawn
    double obs = 0;             ///< its course from the top of the chart, degrees
};

/// What `DrawNAVSymbols` needs to know besides the stations.
struct RadialInputs {
    std::array<std::int16_t, 2> navFreq{}; ///< per receiver: 0 VOR 1, 1 VOR 2, 2 localizer
    RadialSettings inst2;
    RadialSettings inst3;
    bool center = true;  ///< draw the course and its reciprocal
    bool border = false; ///< draw the lines 10 degrees to either side
    double locCourse = 0;
};

/// Lays out the five symbols with their labels, the localizer's feather and the radials of the
/// tuned stations, with the chart turned by `rotation` degrees. A symbol that is less than 16 twips
/// off stays where it is, so symbols do not jitter.
void DrawNAVSymbols(ChartPicture& picture, MapView& view, Stations& stations, double rotation,
                    const RadialInputs& inputs);

void hideRadials(ChartPicture& picture, RadialLines& lines);

/// Shows a station's symbol by its facilities, and its name label with it.
void showStation(ChartPicture& picture, std::size_t slot, bool stationOn, bool dmeOn);

/// Shows the localizer's feather and its name label, which a DME alone does not have.
void showLocalizer(ChartPicture& picture, bool visible);

/// Places the miniature airplane with its outline at `place`.
void MinatureAirplane(ChartPicture& picture, Point place, const AirplaneOutline& outline,
                      bool visible);

void drawSpeedVectors(ChartPicture& picture, const SpeedVectors& vectors, bool visible);

} // namespace tarnel
