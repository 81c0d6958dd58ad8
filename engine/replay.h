#pragma once

#include "core/recording.h"
#include "engine/comment_marking.h"
#include "engine/flight_recorder.h"
#include "engine/flight_scene.h"
#include "engine/flight_tape.h"
#include "engine/hand_history.h"
#include "engine/session_on_disk.h"
#include "engine/simulation_clocks.h"
#include "engine/simulation_properties.h"
#include "engine/wind_setting.h"

#include <cstdint>

namespace tarnel {

/// Brings samples of a resting flight back, flies on between them, and resumes the flight there.
class Replay {
  public:
    struct Given {
        PanelProperties& panel; ///< restored from the sample
        ChartProperties& chart; ///< the length of a resumed flight is published
        ReplayProperties& replay;
        FlightScene& scene; ///< aircraft and stations are put where they were
        WindSetting& wind;
        FlightTape& tape; ///< cut by a resumption; unlocked settings are written over
        FlightRecorder& recorder;
        CommentMarking& comments;
        SimulationClocks& clocks;
        SessionOnDisk& session;
        HandHistory& history; ///< keeps the moves of stations alone
    };
    explicit Replay(const Given& what) : given(what) {}

    /// Goes to the sample of `c_RepeatValue`.
    void goToSample();
    /// Goes to a sample of what was loaded, with all the settings it has.
    void showWhole(std::int16_t index);
    /// From the last sample on the flight goes on; from an earlier one, or from a situation without
    /// a flight, another one begins that must not be saved over the first.
    void resume();

  private:
    void overwriteSettings(std::int16_t index);
    void restoreSettings(const Sample& sample);
    void restoreMotion(const Sample& sample);
    void restorePlace(const Sample& sample);
    void flyBetweenSamples();
    void redraw();

    Given given;
    bool flownBetween = false; ///< the aircraft has flown on from the sample gone to
};

} // namespace tarnel
