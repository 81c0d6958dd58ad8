#pragma once

#include "tracks/track.h"

#include <cstddef>
#include <string>

namespace tarnel {

/// More than any track of `mostTrackPoints` needs, in bytes.
constexpr std::size_t largestTrackFile = std::size_t{64} << 20;

/// Reads the bytes of a GPX or CSV file, which are told apart by what they begin with. Throws the
/// FileProblem of the first line that is wrong.
[[nodiscard]] Track readTrack(std::string bytes);

/// The first track of a GPX 1.0 or 1.1 file that has points, its segments one behind the other.
/// Each point needs its time. A document type is refused, so nothing in the file can name or
/// multiply what lies elsewhere.
[[nodiscard]] Track readGpx(const std::string& bytes);

/// A table with the names of its columns in the first line: time (or timestamp, or seconds since
/// whenever), latitude and longitude in degrees (or lat and lon), in any order and case, with or
/// without a unit behind the word ("time_utc", "Latitude (deg)"); "altitude_ft" and "altitude_m"
/// are taken, too. Commas, semicolons or tabs lie between the columns; beside the latter two a
/// decimal comma is understood. Empty lines and those that begin with "#" are read over.
[[nodiscard]] Track readCsvTrack(std::string bytes);

} // namespace tarnel
