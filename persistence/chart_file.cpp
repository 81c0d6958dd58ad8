#include "persistence/chart_file.h"

#include "core/rounding.h"
#include "persistence/line_source.h"
#include "persistence/line_writer.h"

#include <algorithm>

namespace tarnel {

namespace {

// The poles have no value in Mercator sailing.
constexpr DegreesRule latitudeRule{FileField::latitude, 89};
constexpr DegreesRule longitudeRule{FileField::longitude, farthestLongitude};
constexpr DegreesRule headingRule{FileField::heading, 360};
constexpr DegreesRule courseRule{FileField::localizerCourse, 360};

void readPositions(LineSource& lines, ChartFile& chart) {
    const double latitude = lines.nextNumber(latitudeRule);
    const double longitude = lines.nextNumber(longitudeRule);
    chart.aircraft = GeoPosition{latitude, longitude};
    chart.heading = lines.nextNumber(headingRule);
    for (ChartStation& station : chart.stations) {
        const double east = lines.nextNumber(longitudeRule);
        const double north = lines.nextNumber(latitudeRule);
        station.position = GeoPosition{north, east};
    }
    chart.locCourse = lines.nextNumber(courseRule);
}

void readAll(LineSource& lines, ChartFile& chart) {
    lines.openEitherForm();
    readStations(lines, chart);
    chart.mapCenterSelect = readMapCentre(lines);
    readMapScale(lines, chart);
    readPositions(lines, chart);
}

double withMinutesOfLatitude(const GeoPosition& place) {
    const SplitPosition split = toSplit(place);
    const SplitAngle mixed{split.longitude.degrees, split.latitude.minutes};
    return std::clamp(toPlain(mixed), -longitudeRule.limit, longitudeRule.limit);
}

void writePositions(LineWriter& lines, const ChartFile& chart, AircraftLongitude longitude) {
    const GeoPosition aircraft = chart.aircraft.value_or(GeoPosition{});
    lines.numberLine(aircraft.latitude);
    lines.numberLine(longitude == AircraftLongitude::asItIs ? aircraft.longitude
                                                            : withMinutesOfLatitude(aircraft));
    lines.line("0");
    for (const ChartStation& station : chart.stations) {
        const GeoPosition place = station.position.value_or(GeoPosition{});
        lines.numberLine(place.longitude);
        lines.numberLine(place.latitude);
    }
}

} // namespace

ChartFile readChart(std::string bytes) {
    ChartFile chart;
    LineSource lines(std::move(bytes));
    try {
        readAll(lines, chart);
    } catch (const FileProblem& problem) {
        chart.problem = problem;
    }
    return chart;
}

std::string writeChart(const ChartFile& chart, std::optional<int> key,
                       AircraftLongitude longitude) {
    constexpr std::size_t usualBytes = 1024;
    LineWriter lines(key, "***** !DO NOT EDIT! *** Tarnel - .map file         ***", usualBytes);
    writeStations(lines, chart);
    lines.line(":mc:,1");
    writeMapScale(lines, chart);
    writePositions(lines, chart, longitude);
    lines.numberLine(toInt16(chart.locCourse.value_or(0)));
    return std::move(lines).finish();
}

} // namespace tarnel
