#pragma once

#include "core/comments.h"
#include "core/flight_clock.h"
#include "core/recording.h"
#include "core/reference_track.h"

#include <cstdint>
#include <string>

namespace tarnel {

/// What the next start does with the recording: nothing, clear it, or cut it at the sample shown.
enum class ResumeMode { goOn, clear, cut };

/// Tells the states of the flight in memory apart; one that is brought back has its own again.
struct FlightVersion {
    std::uint64_t recording = 0; ///< counts of changes
    std::uint64_t comments = 0;
    std::uint64_t stations = 0;
    bool operator==(const FlightVersion&) const = default;
};

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

} // namespace tarnel
