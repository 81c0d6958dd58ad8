#pragma once

#include "core/stations.h"

#include <cstdint>
#include <span>
#include <vector>

namespace tarnel {

/// A place that a framed chart has to show.
struct FramedPlace {
    GeoPosition position;
    double room = 0; ///< twips to every side that belong to it: its symbol and its lettering
};

/// Where a chart is centred and how large it is, so that it shows certain places.
struct ChartFraming {
    SplitPosition centre;
    std::int16_t scale = 250; ///< twips per NM, 1 to 1000
};

/// The room that an aircraft takes on a framed chart.
constexpr double framedAircraftRoom = 350;

/// How far above the lower edge a new flight begins, in twips: in the strip of paper that a framing
/// leaves free below what it shows.
constexpr double framedStartHeight = 500;

/// The five stations with their labels, and the localizer's feather as far as it is flown along.
/// `locCourse`: the degrees on which the feather leaves the localizer.
[[nodiscard]] std::vector<FramedPlace> framedStations(const Stations& stations, double locCourse);

/// The largest north-up chart of `size` twips that shows all of `places`, clear of what stands over
/// the paper's upper and lower edges. Places more than the whole paper apart at 1 twip per NM are
/// cut off at the edges. `places` must not be empty.
[[nodiscard]] ChartFraming framingOf(std::span<const FramedPlace> places, double size);

} // namespace tarnel
