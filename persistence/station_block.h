#pragma once

#include "core/geo_position.h"
#include "core/stations.h"
#include "persistence/file_problem.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>

namespace tarnel {

class LineSource;
class LineWriter;

/// A station's state code: the station, its DME and its button.
struct StationState {
    bool stationOn = false;
    bool dmeOn = false;
    bool buttonDown = false;
    bool operator==(const StationState&) const = default;
};

/// What a file tells of one station. A field that the file does not give is empty.
struct ChartStation {
    std::optional<std::string> identifier;
    std::int16_t labelOffsetX = -200; ///< twips; holds with the identifier
    std::int16_t labelOffsetY = -555;
    std::optional<std::string> frequency; ///< text, never a number
    std::optional<StationState> state;
    std::optional<bool> stationOn;       ///< all that an older session tells of the state
    std::optional<GeoPosition> position; ///< charts alone; a session has it in each sample
};

/// What charts and sessions tell of the stations and the map, as far as the file could be read.
struct StationBlock {
    std::array<ChartStation, slotCount> stations;
    std::optional<std::int16_t> mapCenterSelect;
    std::optional<std::int16_t> mapScaleTwips; ///< twips per NM, 125 to 1000
    std::optional<FileProblem> problem;        ///< the line that ended the reading too early
};

/// Reads the identifiers and frequencies, unless the next line lacks the ":v1" of their first, and
/// the station states. All other tags are read over.
void readStations(LineSource& lines, StationBlock& block);

/// Takes the line of the map centre: a whole number behind a tag of 5 characters.
[[nodiscard]] std::int16_t readMapCentre(LineSource& lines);

/// Reads a map scale if the next line has its tag ":ms:,". A scale outside 0.5 to 4 is left out.
void readMapScale(LineSource& lines, StationBlock& block);

/// A station whose label stands at none of the four places gets no code for it. An "@" in an
/// identifier would end it when read and is left out.
void writeStations(LineWriter& lines, const StationBlock& block);

/// Writes the line of `mapScaleTwips`, none if there is no value.
void writeMapScale(LineWriter& lines, const StationBlock& block);

/// The characters before the value in a line of a state or of the map, as ":mc:,".
constexpr std::size_t stateTagLength = 5;

} // namespace tarnel
