#pragma once

#include "core/geo_position.h"
#include "core/stations.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tarnel {

/// What a line of a chart file has to hold.
enum class ChartField {
    plainText, ///< a chart that is not enciphered
    identifier,
    frequency,
    stationState,
    ndbState,
    mapCentre,
    mapScale,
    latitude,
    longitude,
    heading,
    localizerCourse,
};

/// Where a chart file is wrong.
struct ChartProblem {
    int line = 0; ///< from 1
    ChartField expected = ChartField::identifier;
    bool endOfFile = false; ///< the file ends before that line
    bool operator==(const ChartProblem&) const = default;
};

/// A station's state code: the station, its DME and its button.
struct StationState {
    bool stationOn = false;
    bool dmeOn = false;
    bool buttonDown = false;
    bool operator==(const StationState&) const = default;
};

/// What a chart file tells of one station. A field that the file does not give is empty.
struct ChartStation {
    std::optional<std::string> identifier;
    std::int16_t labelOffsetX = -200; ///< twips; holds with the identifier
    std::int16_t labelOffsetY = -555;
    std::optional<std::string> frequency; ///< text, never a number
    std::optional<StationState> state;
    std::optional<GeoPosition> position;
};

/// A chart as far as its file could be read.
struct ChartFile {
    std::array<ChartStation, slotCount> stations;
    std::optional<std::int16_t> mapCenterSelect;
    std::optional<std::int16_t> mapScaleTwips; ///< twips per NM, 125 to 1000
    std::optional<GeoPosition> aircraft;
    std::optional<double> heading; ///< degrees
    std::optional<double> locCourse;
    std::optional<ChartProblem> problem; ///< the line that ended the reading too early
};

/// Reads the text of a plain `.map` file: one value a line, by position, lines ended by CR LF or
/// LF, UTF-8. An empty text is an empty chart. A file that does not begin with ":v1" starts at the
/// station states. A map scale outside 0.5 to 4 is left out. Never throws on bad content: what
/// stood before the first wrong line is kept.
[[nodiscard]] ChartFile readChart(std::string_view text);

} // namespace tarnel
