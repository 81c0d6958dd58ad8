#include "persistence/chart_file.h"

#include "core/number_text.h"
#include "core/rounding.h"

#include <cmath>

namespace tarnel {

namespace {

constexpr std::size_t identifierTagLength = 7;
constexpr std::size_t stateTagLength = 5;

/// The lines of a file one after the other; a wrong one ends the reading.
class ChartLines {
  public:
    explicit ChartLines(std::string_view text) : rest(text) {}

    [[nodiscard]] bool atEnd() const { return rest.empty(); }
    [[nodiscard]] std::string_view peek() const { return currentLine(); }

    /// The next line, which has to hold `expected`.
    std::string_view next(ChartField expected) {
        if (rest.empty())
            throw ChartProblem{number + 1, expected, true};
        const std::string_view line = currentLine();
        const auto end = rest.find('\n');
        rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
        ++number;
        return line;
    }

    std::string_view afterTag(std::size_t tagLength, ChartField expected) {
        const std::string_view line = next(expected);
        if (line.size() < tagLength)
            fail(expected);
        return line.substr(tagLength);
    }

    double numberIn(std::string_view text, ChartField expected) {
        const auto value = parseNumber(text);
        if (!value)
            fail(expected);
        return *value;
    }

    double numberWithin(double limit, ChartField expected) {
        const double value = numberIn(next(expected), expected);
        if (std::abs(value) > limit)
            fail(expected);
        return value;
    }

    [[noreturn]] void fail(ChartField expected) const {
        throw ChartProblem{number, expected, false};
    }

  private:
    [[nodiscard]] std::string_view currentLine() const {
        std::string_view line = rest.substr(0, rest.find('\n'));
        if (line.ends_with('\r'))
            line.remove_suffix(1);
        return line;
    }

    std::string_view rest;
    int number = 0;
};

void readIdentifier(ChartLines& lines, ChartStation& station) {
    const std::string_view text = lines.afterTag(identifierTagLength, ChartField::identifier);
    const auto at = text.find('@');
    station.identifier = std::string(text.substr(0, at));
    const char code = at == std::string_view::npos || at + 1 >= text.size() ? 'u' : text[at + 1];
    switch (code) {
    case 'r':
        station.labelOffsetX = 200;
        station.labelOffsetY = -190;
        break;
    case 'l':
        station.labelOffsetX = -700;
        station.labelOffsetY = -190;
        break;
    case 'd':
        station.labelOffsetX = -200;
        station.labelOffsetY = 135;
        break;
    default:
        station.labelOffsetX = -200;
        station.labelOffsetY = -555;
    }
}

void readStations(ChartLines& lines, ChartFile& chart) {
    for (ChartStation& station : chart.stations) {
        readIdentifier(lines, station);
        station.frequency = std::string(lines.afterTag(identifierTagLength, ChartField::frequency));
    }
}

StationState readStationState(ChartLines& lines) {
    static constexpr StationState states[] = {
        {false, false, false}, {true, true, false},  {true, true, true},  {true, false, false},
        {true, false, true},   {false, true, false}, {false, true, true},
    };
    const std::string_view code = lines.afterTag(stateTagLength, ChartField::stationState);
    const double value = lines.numberIn(code, ChartField::stationState);
    if (value != std::floor(value) || value < 0 || value > 6)
        lines.fail(ChartField::stationState);
    return states[static_cast<std::size_t>(value)];
}

StationState readNdbState(ChartLines& lines) {
    const std::string_view code = lines.afterTag(stateTagLength, ChartField::ndbState);
    const double value = lines.numberIn(code, ChartField::ndbState);
    if (value != 0 && value != 1 && value != 2)
        lines.fail(ChartField::ndbState);
    return {value != 0, false, value == 1};
}

void readStates(ChartLines& lines, ChartFile& chart) {
    for (std::size_t slot = 0; slot < slotCount; ++slot) {
        chart.stations[slot].state = hasDme(slot) ? readStationState(lines) : readNdbState(lines);
    }
}

void readMap(ChartLines& lines, ChartFile& chart) {
    constexpr double largestScale = 0.5;
    constexpr double smallestScale = 4;
    const double centre = lines.numberIn(lines.afterTag(stateTagLength, ChartField::mapCentre),
                                         ChartField::mapCentre);
    if (std::abs(centre) > 32767)
        lines.fail(ChartField::mapCentre);
    chart.mapCenterSelect = toInt16(centre);
    if (!lines.peek().starts_with(":ms:,"))
        return;
    const double scale =
        lines.numberIn(lines.afterTag(stateTagLength, ChartField::mapScale), ChartField::mapScale);
    if (scale >= largestScale && scale <= smallestScale)
        chart.mapScaleTwips = toInt16(500 / scale);
}

void readPositions(ChartLines& lines, ChartFile& chart) {
    // The poles have no value in Mercator sailing.
    constexpr double latitudeLimit = 89;
    constexpr double longitudeLimit = 180;
    constexpr double fullCircle = 360;
    const double latitude = lines.numberWithin(latitudeLimit, ChartField::latitude);
    const double longitude = lines.numberWithin(longitudeLimit, ChartField::longitude);
    chart.aircraft = GeoPosition{latitude, longitude};
    chart.heading = lines.numberWithin(fullCircle, ChartField::heading);
    for (ChartStation& station : chart.stations) {
        const double east = lines.numberWithin(longitudeLimit, ChartField::longitude);
        const double north = lines.numberWithin(latitudeLimit, ChartField::latitude);
        station.position = GeoPosition{north, east};
    }
    chart.locCourse = lines.numberWithin(fullCircle, ChartField::localizerCourse);
}

void readAll(ChartLines& lines, ChartFile& chart) {
    if (lines.atEnd())
        return;
    if (lines.peek().starts_with("*****")) {
        lines.next(ChartField::plainText);
        lines.fail(ChartField::plainText);
    }
    if (lines.peek().starts_with(":v1"))
        readStations(lines, chart);
    readStates(lines, chart);
    readMap(lines, chart);
    readPositions(lines, chart);
}

} // namespace

ChartFile readChart(std::string_view text) {
    ChartFile chart;
    ChartLines lines(text);
    try {
        readAll(lines, chart);
    } catch (const ChartProblem& problem) {
        chart.problem = problem;
    }
    return chart;
}

} // namespace tarnel
