#pragma once

#include "core/comments.h"
#include "core/flight_clock.h"
#include "core/recording.h"
#include "core/reference_track.h"
#include "engine/comment_marking.h"
#include "engine/flight_recorder.h"
#include "engine/flight_tape.h"
#include "engine/session_on_disk.h"
#include "engine/simulation_clocks.h"
#include "engine/simulation_properties.h"

#include <cstdint>
#include <string>

namespace tarnel {

/// A whole flight as it lies in memory, with all that a placed aircraft ends.
struct FlightInMemory {
    Recording recording;
    Comments comments;
    ReferenceTrack reference;
    ReferenceReading referenceReading;
    FlightClock clock;
    ResumeMode resumeMode = ResumeMode::goOn;
    std::int16_t replaySample = 1;
    // Properties of the same names.
    std::int16_t traceBufferMax = 0;
    std::int16_t flyEN = 0;
    std::int16_t replayInstLock = 0;
    std::int16_t repeatValue = 0;
    std::int16_t apMinutes = 0;
    std::int16_t apSeconds = 0;
    std::int16_t apHours2 = 0;
    std::int16_t apMinutes2 = 0;
    std::int16_t apSeconds2 = 0;
    std::string currentComment;
    std::string sessionFileName;
    std::string sessionNamedByUser;
    FlightVersion versionInFile;
};

/// Takes a copy of the flight in memory out of all rooms that hold a part of it, and puts one back.
class FlightMemory {
  public:
    struct Given {
        PanelProperties& panel;
        ChartProperties& chart;
        ReplayProperties& replay;
        FlightTape& tape;
        FlightRecorder& recorder;
        CommentMarking& comments;
        SimulationClocks& clocks;
        SessionOnDisk& session;
    };
    explicit FlightMemory(const Given& what) : given(what) {}

    [[nodiscard]] FlightInMemory copy() const;
    /// The flight is there again, as if nothing had happened. The aircraft stays.
    void putBack(const FlightInMemory& flight);

  private:
    Given given;
};

} // namespace tarnel
