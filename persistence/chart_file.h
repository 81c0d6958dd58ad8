#pragma once

#include "persistence/station_block.h"

#include <cstddef>
#include <optional>
#include <string>

namespace tarnel {

/// A chart as far as its file could be read.
struct ChartFile : StationBlock {
    std::optional<GeoPosition> aircraft;
    std::optional<double> heading; ///< degrees
    std::optional<double> locCourse;
};

/// Reads the bytes of a `.map` file, plain or enciphered: one value a line, by position, lines
/// ended by CR LF or LF. A file that does not begin with ":v1" starts at the station states. A map
/// scale outside 0.5 to 4 is left out. Longitudes run on to `farthestLongitude`. Never throws on
/// bad content: what stood before the first wrong line is kept.
[[nodiscard]] ChartFile readChart(std::string bytes);

/// How the longitude of the aircraft is written. Earlier installations write it with the minutes of
/// the latitude.
enum class AircraftLongitude { asEarlier, asItIs };

/// The bytes of a `.map` file, enciphered if there is a `key` (1 to 99). What `chart` does not give
/// is written as 0 or as an empty text; a missing map scale is left out. Map centre and heading are
/// always written as 1 and 0.
///
/// All positions but the aircraft's longitude `asEarlier` read back to the same bits. Throws the
/// overflow error when the aircraft's degrees leave 16 bits.
[[nodiscard]] std::string writeChart(const ChartFile& chart, std::optional<int> key,
                                     AircraftLongitude longitude = AircraftLongitude::asEarlier);

} // namespace tarnel
