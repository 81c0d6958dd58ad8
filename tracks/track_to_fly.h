#pragma once

#include "tracks/track.h"

#include <vector>

namespace tarnel {

/// Where the track is at a sample of the recording, and how it moves on from there.
struct TrackMoment {
    GeoPosition position;
    double course = 0;   ///< degrees true over the ground, 0 up to 360
    double speed = 0;    ///< knots over the ground
    double altitude = 0; ///< feet; 0 where the track has none
};

/// What of a track can be flown along.
struct TrackToFly {
    std::vector<TrackMoment> moments; ///< element 0 is sample 1
    bool cut = false;                 ///< the track goes on behind what a recording holds
};

/// `track` from sample to sample, straight between its points. What is slower than 50 knots at its
/// beginning and its end is left out, as the trainer flies no slower. It is cut where a recording
/// ends.
///
/// Throws the FileProblem of the first point that can't be followed: more than a minute behind the
/// one before, faster than 500 knots over the ground, beyond 70 degrees of latitude, where the
/// trainer does not fly; and of a track with no flight in it.
[[nodiscard]] TrackToFly trackToFly(const Track& track);

} // namespace tarnel
