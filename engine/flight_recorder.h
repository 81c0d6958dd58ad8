#pragma once

#include "core/recording.h"
#include "core/reference_track.h"
#include "core/setting_kinds.h"
#include "engine/comment_marking.h"
#include "engine/flight_scene.h"
#include "engine/flight_tape.h"
#include "engine/session_on_disk.h"
#include "engine/simulation_clocks.h"
#include "engine/simulation_messages.h"
#include "engine/simulation_properties.h"
#include "engine/wind_setting.h"

#include <cstdint>

namespace tarnel {

/// Records the flight, and compares it with its reference.
class FlightRecorder {
  public:
    struct Given {
        SimulationMessages& messages; ///< told when the tape runs out
        PanelProperties& panel;       ///< recorded; a flight beyond its reference is ended
        ChartProperties& chart;       ///< the length of the flight is published
        const FlightScene& scene;
        const WindSetting& wind;
        FlightTape& tape;
        CommentMarking& comments; ///< a sample carries what is being marked
        SimulationClocks& clocks; ///< start with a flight
        SessionOnDisk& session;   ///< a new flight has no file
    };
    explicit FlightRecorder(const Given& what) : given(what) {}

    /// Writes a sample, compares it, and shows its comment. The tape moves on while the aircraft
    /// moves.
    void recordSample();
    /// Begins a flight: what was recorded goes.
    void beginFlight();
    /// The start of a recording: the next start of the clock discards what was recorded, and sample
    /// 1 holds the present state.
    void markFreshStart();
    /// A recording that has not begun shows the chart as it stands now.
    void renewFirstSample();
    /// Compares the aircraft's place with that of the reference at the same sample.
    void compareWithReference(std::int16_t index);
    void forgetReference();

    /// What a sample would hold now, without a comment.
    [[nodiscard]] Sample presentSample() const;
    /// Takes the present settings of what a replay restores behind the lock alone.
    void copySettings(Sample& sample) const;

    ReferenceTrack reference;
    ReferenceReading reading; ///< as last compared

  private:
    [[nodiscard]] double recorded(setting::Course, const Property<double>& course) const;
    template <class Kind, class Value>
    [[nodiscard]] Value recorded(Kind, const Property<Value>& property) const {
        return property;
    }
    void tapeRunsOut(BufferWarning warning);

    Given given;
};

} // namespace tarnel
