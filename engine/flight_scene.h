#pragma once

#include "chart/chart_drawing.h"
#include "chart/chart_picture.h"
#include "chart/map_view.h"
#include "core/aircraft.h"
#include "core/plane_geometry.h"
#include "core/speed_vectors.h"
#include "core/stations.h"
#include "engine/flight_tape.h"
#include "engine/simulation_properties.h"
#include "engine/wind_setting.h"

#include <cstdint>

namespace tarnel {

/// The aircraft over the stations: flies and turns it, draws both on the chart, and publishes what
/// the receivers measure where it is.
class FlightScene {
  public:
    struct Given {
        PanelProperties& panel; ///< the heading is published, and the courses that it turns
        const ChartProperties& chart;
        const ReplayProperties& replay; ///< a locked replay turns no course
        StationSlots& stationSlots;     ///< what the receivers measure is published
        const WindSetting& wind;
        const FlightTape& tape; ///< drawn as the trace
    };
    explicit FlightScene(const Given& what) : given(what) {}

    /// Moves the aircraft by one tick if it `flies`, and brings chart, radios and read-outs up to
    /// date.
    void step(bool flies);
    /// Brings them up to date where the aircraft is.
    void refresh() { step(false); }
    /// Publishes what the receivers have of the stations where the aircraft is.
    void measure();
    /// Turns the aircraft as far as the last step's turn rate takes it in one tick.
    void turnByTick();
    /// Turns the aircraft at once. Degrees, 0 to 360.
    void turnAircraft(double heading);
    /// The same, and the picture waits for the next step.
    void takeHeading(double heading);
    /// One tick of flight and of turning alone, as between two samples.
    void flyByTick();
    /// Puts the aircraft at a position, and its symbol where that lies on the chart.
    template <class Position>
    void placeAircraft(const Position& position) {
        aircraft.placeAt(position);
        view.placeAircraft(aircraft);
    }
    void moveStation(Slot which, const SplitPosition& position);
    /// Counts the changes of names, frequencies and places of the stations.
    [[nodiscard]] std::uint64_t stationChanges() const { return changesOfStations; }

    /// What the chart draws of the receivers.
    [[nodiscard]] RadialInputs radialInputs() const;
    /// Draws stations and radials, as the panel has them or as `inputs` tell.
    void redrawChart() { redrawChart(radialInputs()); }
    void redrawChart(const RadialInputs& inputs);
    /// Draws the radials again that are to be seen now.
    void switchRadials();
    /// Shows a station's name, frequency and facilities as its properties have them.
    void relabelStation(Slot which);
    void showStationSymbol(Slot which);
    void showAirplane();
    /// Turns the airplane's symbol as the aircraft flies: north-up along its heading, else up.
    void turnSymbol();
    /// Shows or hides the airplane, and the trace with it.
    void switchAirplane();
    /// The wind stands beside the airplane with the vectors or the turns ahead, if it may be told.
    void showWindLabel();
    /// Draws the trace of a flight at rest, or wipes it.
    void redrawTrace();
    /// Draws the trace with the sample that was just recorded; `c_TraceEN` of 2 wipes it.
    void traceSample();
    /// Lays the chart out in the scale of `c_MAPscale`. Throws the division error for one that is
    /// not above 0.
    void showScale();

    Aircraft aircraft;
    Stations stations = defaultStations();
    MapView view;
    ChartPicture picture;
    SpeedVectors speedVectors;
    bool windLabelOn = true; ///< false while the aircraft is placed with the mouse

  private:
    void moveAircraft();
    void headingTurned(double before);
    void followHeadingUp(bool moved);
    void layOutVectors();
    void drawFlownTrace();
    void showTurnsAhead();
    [[nodiscard]] bool traceShown() const {
        return given.chart.c_TraceEN == 1 && given.chart.c_AirplaneEN == 1;
    }
    [[nodiscard]] double rotation() const { return view.rotation(aircraft.trueHeading); }

    Given given;
    AirplaneOutline airplaneOutline;
    std::uint64_t changesOfStations = 0;
};

} // namespace tarnel
