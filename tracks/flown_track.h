#pragma once

#include "core/recording.h"
#include "tracks/track.h"

#include <cstdint>
#include <span>
#include <string>

namespace tarnel {

/// The flight of `samples` as a track that begins at `start`, seconds since 1970 UTC: a point a
/// sample, simulated seconds. The altitude is the one that the pilot has set.
[[nodiscard]] Track flownTrack(std::span<const Sample> samples, std::string name,
                               std::int64_t start);

} // namespace tarnel
