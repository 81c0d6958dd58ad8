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

/// The room that an aircraft takes on a framed chart, and that of a VOR's rose; the label of any
/// station finds its place within or beside it.
constexpr double framedAircraftRoom = 350;
constexpr double framedStationRoom = 560;

/// The paper of a framed chart, in twips: how wide and high it is, and what is kept free at its
/// upper and lower edges; without other words for the switches above and a starting aircraft below.
struct FramedPaper {
    double size = 0;
    double freeAbove = 450;
    double freeBelow = 850;
};

/// A sheet on which nothing but the scale and the arrow to the north stand over the paper.
[[nodiscard]] constexpr FramedPaper printedPaper(double size) {
    return {size, 100, 560};
}

/// How far above the lower edge a new flight begins, in twips: in the strip of paper that a framing
/// leaves free below what it shows.
constexpr double framedStartHeight = 500;

/// The five stations with their labels, and the localizer's feather as far as it is flown along.
/// `locCourse`: the degrees on which the feather leaves the localizer.
[[nodiscard]] std::vector<FramedPlace> framedStations(const Stations& stations, double locCourse);

/// The largest north-up chart that shows all of `places`, clear of what stands over the paper's
/// upper and lower edges. Places more than the whole paper apart at 1 twip per NM are cut off at
/// the edges. `places` must not be empty.
[[nodiscard]] ChartFraming framingOf(std::span<const FramedPlace> places, const FramedPaper& paper);

} // namespace tarnel
