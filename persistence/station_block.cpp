#include "persistence/station_block.h"

#include "core/rounding.h"
#include "persistence/line_source.h"
#include "persistence/line_writer.h"
#include "persistence/text_encoding.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <string_view>

namespace tarnel {

namespace {

constexpr std::size_t identifierTagLength = 7;
constexpr double scaleOfOneTwip = 500;
constexpr std::string_view mapScaleTag = ":ms:,";

/// The tags of a station's lines. The localizer has VOR 1's for its state.
struct StationTags {
    std::string_view identifier;
    std::string_view frequency;
    std::string_view state;
};

constexpr std::array<StationTags, slotCount> tags = {{
    {":v1id:,", ":v1fr:,", ":n1:,"},
    {":v2id:,", ":v2fr:,", ":n2:,"},
    {":n1id:,", ":n1fr:,", ":n3:,"},
    {":n2id:,", ":n2fr:,", ":n4:,"},
    {":loid:,", ":lofr:,", ":n1:,"},
}};

/// A place of a station's label and its letter behind "@".
struct LabelPlace {
    char code;
    std::int16_t x; ///< twips
    std::int16_t y;
};

constexpr LabelPlace labelPlaces[] = {
    {'u', -200, -555}, {'r', 200, -190}, {'l', -700, -190}, {'d', -200, 135}};

/// Station, DME, button, in the order of their codes.
constexpr StationState stationStates[] = {
    {false, false, false}, {true, true, false},  {true, true, true},  {true, false, false},
    {true, false, true},   {false, true, false}, {false, true, true},
};

enum NdbCode : std::int16_t { ndbOff, ndbOn, ndbOnButtonUp };

void readIdentifier(LineSource& lines, ChartStation& station) {
    const std::string_view text = lines.afterTag(identifierTagLength, FileField::identifier);
    const auto mark = text.find('@');
    station.identifier =
        lines.decoded(text.substr(0, mark), longestStationText, FileField::identifier);
    const char code =
        mark == std::string_view::npos || mark + 1 >= text.size() ? 'u' : text[mark + 1];
    const auto* place = std::ranges::find(labelPlaces, code, &LabelPlace::code);
    if (place == std::end(labelPlaces))
        place = labelPlaces;
    station.labelOffsetX = place->x;
    station.labelOffsetY = place->y;
}

std::size_t readCode(LineSource& lines, FileField expected, std::size_t highest) {
    const double code = lines.number(lines.afterTag(stateTagLength, expected), expected);
    if (code != roundToEven(code) || code < 0 || code > static_cast<double>(highest))
        lines.fail(expected);
    return static_cast<std::size_t>(code);
}

StationState readState(LineSource& lines, std::size_t slot) {
    if (hasDme(slot))
        return stationStates[readCode(lines, FileField::stationState,
                                      std::size(stationStates) - 1)];
    const std::size_t code = readCode(lines, FileField::ndbState, ndbOnButtonUp);
    return {code != ndbOff, false, code == ndbOn};
}

std::string identifierText(const ChartStation& station) {
    std::string text = station.identifier.value_or("");
    std::erase(text, '@');
    text = firstCharacters(text, longestStationText);
    for (const LabelPlace& place : labelPlaces)
        if (place.x == station.labelOffsetX && place.y == station.labelOffsetY)
            return text + '@' + place.code;
    return text;
}

/// A button that is down at a station with both facilities off counts as up: there is no code for
/// it.
std::int16_t stateCode(const StationState& state) {
    const auto* found = std::ranges::find(stationStates, state);
    return found == std::end(stationStates) ? std::int16_t{0}
                                            : static_cast<std::int16_t>(found - stationStates);
}

std::int16_t ndbCode(const StationState& state) {
    if (state.stationOn != state.buttonDown)
        return ndbOnButtonUp;
    return state.stationOn ? ndbOn : ndbOff;
}

} // namespace

void readStations(LineSource& lines, StationBlock& block) {
    if (lines.peek().starts_with(":v1"))
        for (ChartStation& station : block.stations) {
            readIdentifier(lines, station);
            station.frequency =
                lines.decoded(lines.afterTag(identifierTagLength, FileField::frequency),
                              longestStationText, FileField::frequency);
        }
    for (std::size_t slot = 0; slot < slotCount; ++slot)
        block.stations[slot].state = readState(lines, slot);
}

std::int16_t readMapCentre(LineSource& lines) {
    constexpr WholeRule rule{FileField::mapCentre, std::numeric_limits<std::int16_t>::min(),
                             std::numeric_limits<std::int16_t>::max()};
    return lines.number(lines.afterTag(stateTagLength, FileField::mapCentre), rule);
}

void readMapScale(LineSource& lines, StationBlock& block) {
    constexpr double largestScale = 0.5;
    constexpr double smallestScale = 4;
    if (!lines.peek().starts_with(mapScaleTag))
        return;
    const double scale =
        lines.number(lines.afterTag(mapScaleTag.size(), FileField::mapScale), FileField::mapScale);
    if (scale >= largestScale && scale <= smallestScale)
        block.mapScaleTwips = toInt16(scaleOfOneTwip / scale);
}

void writeStations(LineWriter& lines, const StationBlock& block) {
    for (std::size_t slot = 0; slot < slotCount; ++slot) {
        const ChartStation& station = block.stations[slot];
        lines.textLine(tags[slot].identifier, identifierText(station));
        lines.textLine(tags[slot].frequency,
                       firstCharacters(station.frequency.value_or(""), longestStationText));
    }
    for (std::size_t slot = 0; slot < slotCount; ++slot) {
        const StationState state = block.stations[slot].state.value_or(StationState{});
        lines.numberLine(tags[slot].state, hasDme(slot) ? stateCode(state) : ndbCode(state));
    }
}

void writeMapScale(LineWriter& lines, const StationBlock& block) {
    if (block.mapScaleTwips)
        lines.numberLine(mapScaleTag, scaleOfOneTwip / *block.mapScaleTwips);
}

} // namespace tarnel
