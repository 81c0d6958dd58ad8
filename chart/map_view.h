#pragma once

#include "core/aircraft.h"
#include "core/chart_plot.h"
#include "core/stations.h"

#include <cstdint>

namespace tarnel {

/// What a chart is centred on: the values of `c_MAPCenterSelect`.
enum class MapCentre : std::int16_t { aircraft = 1, vor1, vor2, ndb1, ndb2, localizer };

/// How geography lies on the chart: centre, scale, and north or the heading at the top.
class MapView {
  public:
    Chartsubmodul1 plot;
    SplitPosition mapCenter{{49, 0}, {11, 0}}; ///< where north-up returns to on each step
    bool northUpMode = true;

    /// Takes `position` as centre and as reference point.
    void centreOn(const SplitPosition& position);

    /// Takes the centre that `select` names; values other than 1 to 6 leave it as it is. In the
    /// heading-up view the reference point stays with the aircraft.
    void MapCenterSelect(std::int16_t select, const SplitPosition& aircraft,
                         const Stations& stations);

    /// The degrees that everything on the chart is turned by: 0 in the north-up view.
    [[nodiscard]] double rotation(double trueHeading) const {
        return northUpMode ? 0 : 360 - trueHeading;
    }

    /// Writes where `position` lies on the chart turned by `rotation` degrees about the reference
    /// point. Where the 16-bit position does not fit, the old one stays.
    void placeOnChart(const GeoPosition& position, double rotation, ChartPlace& place);

    /// Writes the aircraft's own place: on the reference point in the heading-up view.
    void placeAircraft(Aircraft& aircraft);

    /// NM per 500 twips of chart, one decimal.
    [[nodiscard]] double scaleLabelMiles() const;

    /// The scales that are offered, in twips per NM: 4, 3, 2, 1.5, 1 and 0.5 NM per 500 twips.
    static constexpr std::int16_t offeredScales[] = {125, 167, 250, 333, 500, 1000};
};

} // namespace tarnel
