#pragma once

#include "persistence/file_problem.h"
#include "tracks/track.h"

#include <cstddef>
#include <optional>

namespace tarnel {

/// More than a day with a point a second.
constexpr std::size_t mostTrackPoints = 100'000;

/// `TrackBuilder`: puts a track together from the points that a file holds.
class TrackBuilder {
  public:
    /// Takes a point at `time`, seconds since 1970 UTC. One of the same time as the one before adds
    /// nothing and is left out. What the file should have held where the point can't be taken.
    [[nodiscard]] std::optional<FileField> add(TrackPoint point, double time);
    [[nodiscard]] bool empty() const { return track.points.empty(); }
    /// The track of all points. Throws the problem of a file with `lines` lines that has less than
    /// two.
    [[nodiscard]] Track finish(int lines) &&;

    std::string& name = track.name;

  private:
    Track track;
};

} // namespace tarnel
