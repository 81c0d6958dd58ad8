#include "authoring/chart_source.h"

#include "authoring/session_scale.h"
#include "flights/plan_bounds.h"
#include "flights/plan_table.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <set>

namespace tarnel {

namespace {

constexpr double farthestStation = 60; ///< from the localizer, NM

bool isName(const std::string& text, std::size_t longest, bool (*allowed)(char)) {
    return !text.empty() && text.size() <= longest &&
           std::all_of(text.begin(), text.end(), allowed);
}

bool isIdentifier(const std::string& text) {
    return isName(text, 4, [](char c) { return (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9'); });
}

bool isFileName(const std::string& text) {
    return isName(text, 40, [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '-' || c == '_';
    });
}

/// A number with so many decimals, in a range.
bool isFrequency(const std::string& text, std::size_t decimals, double lowest, double highest) {
    const std::size_t point = text.find('.');
    const std::size_t found = point == std::string::npos ? 0 : text.size() - point - 1;
    const bool digits =
        text.size() <= 7 && text.find_first_not_of("0123456789.") == std::string::npos;
    if (text.empty() || !digits || found != decimals || point == 0)
        return false;
    const double value = std::stod(text);
    return value >= lowest && value <= highest;
}

bool isVorFrequency(const std::string& text) {
    return isFrequency(text, 2, 108, 117.95);
}

bool isNdbFrequency(const std::string& text) {
    return isFrequency(text, 0, 190, 1750);
}

std::string readText(PlanTable& table, std::string_view key, bool (*good)(const std::string&),
                     const std::string& expected) {
    table.need(key);
    return *table.text(key, good, expected);
}

GeoPosition readPlace(PlanTable& table) {
    table.need("latitude");
    table.need("longitude");
    return {*table.number("latitude", plan_limits::latitude),
            *table.number("longitude", plan_limits::longitude)};
}

struct LabelPlace {
    std::int16_t x; ///< twips from the station
    std::int16_t y;
};

void readLabel(PlanTable& table, ChartStation& station) {
    static const std::map<std::string, LabelPlace> places = {{"up", {-200, -555}},
                                                             {"right", {200, -190}},
                                                             {"left", {-700, -190}},
                                                             {"down", {-200, 135}}};
    const auto label = table.text(
        "label", [](const std::string& text) { return places.contains(text); },
        R"("up", "right", "left" or "down")");
    const LabelPlace place = places.at(label.value_or("up"));
    station.labelOffsetX = place.x;
    station.labelOffsetY = place.y;
}

/// What all stations have but their place.
ChartStation readNameOf(PlanTable& table, Slot slot) {
    ChartStation station;
    station.identifier =
        readText(table, "name", isIdentifier, "one to four capital letters or digits");
    station.frequency =
        isNdb(slot) ? readText(table, "frequency", isNdbFrequency, R"(kHz, such as "338")")
                    : readText(table, "frequency", isVorFrequency, R"(MHz, such as "112.30")");
    readLabel(table, station);
    station.state = StationState{.stationOn = true, .dmeOn = hasDme(slot), .buttonDown = true};
    return station;
}

GeoPosition readRunwayEnd(PlanTable& localizer, std::string_view key) {
    localizer.need(key);
    PlanTable end = localizer.part(key);
    const GeoPosition place = readPlace(end);
    end.refuseOtherKeys();
    return place;
}

double toSixDecimals(double degrees) {
    return std::round(degrees * 1e6) / 1e6;
}

void readLocalizer(PlanTable table, ChartFile& chart) {
    ChartStation& localizer = inSlot(chart.stations, Slot::localizer);
    localizer = readNameOf(table, Slot::localizer);
    const GeoPosition threshold = readRunwayEnd(table, "threshold");
    const GeoPosition farEnd = readRunwayEnd(table, "far_end");
    table.refuseOtherKeys();
    const FromStation back = fromStation(farEnd, threshold);
    if (back.distance < 0.1 || back.distance > 3)
        table.refuse("a runway of 0.1 to 3 NM from 'threshold' to 'far_end'");
    const GeoPosition antenna = placeOn(farEnd, {circle(back.radial + 180), localizerBehindRunway});
    localizer.position = {toSixDecimals(antenna.latitude), toSixDecimals(antenna.longitude)};
    chart.locCourse = wholeDegrees(back.radial);
}

/// Reads the two stations under a key into two slots.
void readPair(PlanTable& table, std::string_view key, Slot first, Slot second, ChartFile& chart) {
    std::vector<PlanTable> pair = table.parts(key);
    if (pair.size() != 2)
        table.refuse("two stations in '" + std::string(key) + "'");
    const GeoPosition localizer = *inSlot(chart.stations, Slot::localizer).position;
    for (const Slot slot : {first, second}) {
        PlanTable& row = pair[slot == second];
        ChartStation& station = inSlot(chart.stations, slot);
        station = readNameOf(row, slot);
        station.position = readPlace(row);
        row.refuseOtherKeys();
        if (fromStation(localizer, *station.position).distance > farthestStation)
            row.refuse("a station within 60 NM of the localizer");
        if (slot == second && station.identifier == inSlot(chart.stations, first).identifier)
            row.refuse("another name than its neighbour's");
    }
}

ChartFile readStations(PlanTable& table) {
    ChartFile chart;
    table.need("localizer");
    readLocalizer(table.part("localizer"), chart);
    readPair(table, "vor", Slot::vor1, Slot::vor2, chart);
    readPair(table, "ndb", Slot::ndb1, Slot::ndb2, chart);
    std::vector<GeoPosition> places;
    for (const ChartStation& station : chart.stations)
        places.push_back(*station.position);
    const Extent extent = extentOf(places);
    chart.aircraft = {toSixDecimals((extent.south + extent.north) / 2),
                      toSixDecimals((extent.west + extent.east) / 2)};
    chart.mapScaleTwips = scaleOf(extent);
    return chart;
}

} // namespace

bool isChartSource(std::string_view text, const std::string& file) {
    checkPlanBounds(text, file);
    return PlanTable::parse(text, file).hasTables("chart");
}

std::vector<BuiltFile> buildCharts(std::string_view text, const std::string& file) {
    checkPlanBounds(text, file);
    PlanTable root = PlanTable::parse(text, file);
    std::vector<BuiltFile> maps;
    std::set<std::string> names;
    for (PlanTable& table : root.parts("chart")) {
        const std::string name = readText(table, "name", isFileName,
                                          "the name of a file: small letters, digits, '-' and '_'");
        if (!names.insert(name).second)
            table.refuse("a name that no other chart here has");
        const ChartFile chart = readStations(table);
        table.refuseOtherKeys();
        maps.push_back(
            {"maps/" + name + ".map", writeChart(chart, std::nullopt, AircraftLongitude::asItIs)});
    }
    root.refuseOtherKeys();
    return maps;
}

} // namespace tarnel
