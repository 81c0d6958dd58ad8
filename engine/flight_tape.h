#pragma once

#include "core/recording.h"
#include "engine/simulation_properties.h"

#include <algorithm>
#include <cstdint>

namespace tarnel {

/// What the next start does with the recording: nothing, clear it, or cut it at the sample shown.
enum class ResumeMode { goOn, clear, cut };

/// The flight in memory: its samples, the one that is looked at, and what the next start does.
class FlightTape {
  public:
    explicit FlightTape(const ClockProperties& clockProperties) : clocks(clockProperties) {}

    /// True while the flight rests on a sample that was gone to.
    [[nodiscard]] bool inReplay() const {
        return clocks.stopped() && resumeMode == ResumeMode::cut;
    }
    /// The sample that the user looks at: the one gone to in a replay, else the newest.
    [[nodiscard]] std::int16_t presentSampleIndex() const {
        return inReplay() ? replaySample : std::max<std::int16_t>(1, recording.sampleIndex());
    }
    /// False before the first sample of a flight: what is set up by hand is then all there is.
    [[nodiscard]] bool flown() const {
        return resumeMode != ResumeMode::clear && recording.sampleIndex() > 1;
    }
    /// True if what is set up by hand follows a flight that is still in memory.
    [[nodiscard]] bool situationAfterFlight() const {
        return !flown() && recording.sampleIndex() > 1;
    }

    Recording recording;
    ResumeMode resumeMode = ResumeMode::goOn;
    std::int16_t replaySample = 1; ///< the last sample gone to

  private:
    const ClockProperties& clocks;
};

} // namespace tarnel
