#pragma once

#include "engine/chart_sheet.h"
#include "engine/comment_marking.h"
#include "engine/flight_recorder.h"
#include "engine/flight_scene.h"
#include "engine/flight_tape.h"
#include "engine/hand_history.h"
#include "engine/session_on_disk.h"
#include "engine/simulation_clocks.h"
#include "engine/simulation_properties.h"
#include "engine/wind_setting.h"

namespace tarnel {

/// Empties the memory of the flight: for a new session, and behind an exercise.
class NewSession {
  public:
    struct Given {
        FlightProperties& flight;
        ChartProperties& chart;
        ReplayProperties& replay;
        FlightScene& scene;
        ChartSheet& sheet; ///< frames the stations
        WindSetting& wind;
        FlightTape& tape;
        FlightRecorder& recorder;
        CommentMarking& comments;
        SimulationClocks& clocks;
        SessionOnDisk& session;
        HandHistory& history;
    };
    explicit NewSession(const Given& what) : given(what) {}

    /// Starts an empty session: see `c_NewSession`.
    void start();
    /// Forgets the flight and its reference; the aircraft stays.
    void dropRecording();

  private:
    void standBelowStations();

    Given given;
};

} // namespace tarnel
