#pragma once

#include "core/geo_position.h"
#include "engine/flight_scene.h"
#include "engine/simulation_properties.h"

#include <cstdint>
#include <span>

namespace tarnel {

/// How the paper lies under the flight: its size, scale and centre, and which way is up.
class ChartSheet {
  public:
    struct Given {
        ChartProperties& chart; ///< scale and view are set
        const ReceiverProperties& receivers;
        FlightScene& scene; ///< is laid out anew
    };
    explicit ChartSheet(const Given& what) : given(what) {}

    /// Redraws for a new scale, centre or station position.
    void MapScale();
    void MapCenterSelect();
    void resize();
    /// Turns north or the heading up, as `c_MAPnorthUP` tells.
    void switchView();
    void centreOnAircraft();
    /// Centres the chart on a position. Twips per NM.
    void showChart(const SplitPosition& centre, std::int16_t scale);
    /// Shows all five stations with the localizer's feather, and the places of an aircraft, as
    /// large as they all fit.
    void frameStations(std::span<const GeoPosition> aircraftPlaces = {});
    /// Frames the stations, with north at the top.
    void resetView();
    /// While the aircraft's place is to be found out, nothing centres the chart on it or tells it.
    void setPlaceSecret(bool secret) { secretPlace = secret; }
    [[nodiscard]] bool placeIsSecret() const { return secretPlace; }

  private:
    void takeSize();
    void centreOn(const SplitPosition& centre);
    void layOut();
    [[nodiscard]] SplitPosition aircraftCentre() const;

    Given given;
    bool secretPlace = false;
};

} // namespace tarnel
