#pragma once

#include "core/chart_plot.h"
#include "core/geo_position.h"
#include "core/stations.h"
#include "engine/flight_in_memory.h"
#include "engine/flight_recorder.h"
#include "engine/flight_scene.h"
#include "engine/flight_tape.h"
#include "engine/hand_history.h"
#include "engine/simulation_properties.h"
#include "engine/wind_setting.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace tarnel {

/// What the hand does on the chart, and takes back: it places and turns the aircraft, moves
/// stations and sets the wind. A start, a load and a new session forget what was done; a replay
/// forgets all but the moves of stations.
class HandWork {
  public:
    using HeadingDrawn = std::function<void(std::int16_t)>;

    struct Given {
        const PanelProperties& panel;
        const ChartProperties& chart; ///< the length of the flight
        ReplayProperties& replay;     ///< a placed aircraft hides the comment
        FlightScene& scene;
        WindSetting& wind;
        FlightTape& tape; ///< a moved station is written into its samples
        FlightRecorder& recorder;
        FlightMemory& memory;                      ///< keeps a flight that a placed aircraft ends
        const std::function<void()>& placedByHand; ///< called when the aircraft was placed
        const HeadingDrawn& headingDrawn;          ///< called with the heading of the bug
    };
    explicit HandWork(const Given& what) : given(what) {}

    /// Moves the aircraft to a chart position; the next start discards what was recorded.
    void placeAircraft(ChartPoint point);
    /// Puts the aircraft at a position; the chart is centred on it.
    void placeAircraft(const GeoPosition& position);
    /// Turns the aircraft and its heading bug. Whole degrees, 0 to 359.
    void drawHeading(std::int16_t degrees);
    /// Moves a station; its label and radials follow.
    void placeStation(Slot which, ChartPoint point);
    void moveStation(Slot which, const SplitPosition& position);
    /// Sets the wind of the whole chart; a switched-on wind is this one from now on.
    void setWind(const Wind& next);
    /// The wind as the mouse draws it: as `setWind`, while the drawing goes on.
    void drawWind(const Wind& next);
    /// Takes the wind that `c_WindSetEN` asks for.
    void switchWind();

    /// What a thing done by hand begins with, to be finished once it is done.
    [[nodiscard]] HandStep beginStep(Deed deed, Slot slot = Slot::vor1) const;
    /// Remembers a step, and writes a moved station into the samples from the present one on. False
    /// if nothing has changed or the aircraft flies.
    bool finishStep(HandStep step);
    /// Brings back what stood before a step.
    void putBack(const HandStep& step);
    /// Takes the last step back. False if there is none or the aircraft flies.
    bool undo();
    bool redo();

    HandHistory history;

  private:
    [[nodiscard]] HandState state() const;
    [[nodiscard]] std::shared_ptr<const FlightInMemory> flightThatEnds() const;
    std::vector<std::pair<std::int16_t, GeoPosition>> recordStation(Slot slot);
    void bringAbout(const HandStep& step, const HandState& state);
    void putAircraft(const SplitPosition& position);
    void aircraftPlaced();
    void putBackStation(const HandStep& step);
    void putBackFlight(const FlightInMemory& flight, const SplitPosition& place);

    Given given;
};

} // namespace tarnel
