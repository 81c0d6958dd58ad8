#pragma once

#include "persistence/session_file.h"
#include "tracks/track_to_fly.h"

#include <string>

namespace tarnel {

/// A session whose flight goes along `track`, to be practised: the stations and the panel are those
/// of `present`, which has a sample; speed and heading are those over the ground, as there is no
/// wind; `task` stands beside its first sample.
[[nodiscard]] SessionFile sessionAlong(const TrackToFly& track, SessionFile present,
                                       std::string task);

} // namespace tarnel
