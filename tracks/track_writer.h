#pragma once

#include "tracks/track.h"

#include <optional>
#include <string>
#include <string_view>

namespace tarnel {

/// The kinds of files that other programs take a track from.
enum class TrackFormat { gpx, kml, csv };

/// The ending of such a file's name, without a dot.
[[nodiscard]] std::string_view extensionOf(TrackFormat format);
/// The format that the ending of `fileName` stands for, whatever its case.
[[nodiscard]] std::optional<TrackFormat> formatOf(std::string_view fileName);

/// The bytes of a file with `track`, UTF-8. Positions have nine decimals of a degree, a tenth of a
/// millimetre; each point has its moment to the millisecond, and the first one is the start that
/// the file states.
///
/// GPX 1.1 and KML 2.2 count altitudes in metres. In KML the track is a `gx:Track`, the one form in
/// which each point has its time and which Google Earth as well as GPSBabel reads; the heading
/// stands in its `gx:angles`. GPX has no field for heading and airspeed, so they are left out
/// there: its extensions for course and speed mean those over ground. CSV has all in a row, with
/// units in the names of the columns, points as decimal marks and an empty field for what is not
/// known.
[[nodiscard]] std::string writeTrack(const Track& track, TrackFormat format);

} // namespace tarnel
