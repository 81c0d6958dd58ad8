#include "navdata/anywhere_chart.h"

#include "chart/chart_framing.h"
#include "core/number_text.h"
#include "core/station_geometry.h"
#include "persistence/line_source.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace tarnel {

namespace {

constexpr double wholeTurn = 360;
constexpr double wayAround = wholeTurn / 2;

/// Brings the longitudes within half a turn of the first, and away from where they lose their sign.
void makeLongitudesRunOn(std::vector<GeoPosition*>& places) {
    constexpr double roomToFly = 2; // degrees
    constexpr double signLostAbove = -1;
    const double first = places.front()->longitude;
    double west = first;
    double east = first;
    for (GeoPosition* place : places) {
        place->longitude = first + std::remainder(place->longitude - first, wholeTurn);
        west = std::min(west, place->longitude);
        east = std::max(east, place->longitude);
    }
    const bool bySignlessDegree = west - roomToFly < 0 && east + roomToFly > signLostAbove;
    if (bySignlessDegree || west < -wayAround)
        for (GeoPosition* place : places)
            place->longitude += wholeTurn;
}

ChartStation describe(const Navaid& navaid) {
    ChartStation station;
    station.identifier = navaid.identifier;
    station.frequency = frequencyText(navaid);
    station.state = StationState{.stationOn = true, .dmeOn = navaid.hasDme, .buttonDown = true};
    station.position = navaid.position;
    return station;
}

/// Stations of an empty slot stand with the first of the others, switched off.
void placeEmptySlots(ChartFile& chart, const GeoPosition& place) {
    for (ChartStation& station : chart.stations)
        if (!station.position) {
            station.position = place;
            station.state = StationState{};
        }
}

void frame(ChartFile& chart, double size) {
    constexpr std::int16_t smallest = 125; // twips per NM
    Stations stations;
    for (std::size_t i = 0; i < slotCount; ++i)
        stations[i].position = toSplit(*chart.stations[i].position);
    const ChartFraming framing =
        framingOf(framedStations(stations, chart.locCourse.value_or(0)), {size});
    chart.mapScaleTwips = std::max(framing.scale, smallest);
    chart.aircraft = toPlain(framing.centre);
}

} // namespace

bool fitsChart(const GeoPosition& place) {
    constexpr double farthest = 89;
    return std::abs(place.latitude) <= farthest && !(place.latitude > -1 && place.latitude < 0) &&
           std::abs(place.longitude) <= farthestLongitude;
}

std::string frequencyText(const Navaid& navaid) {
    const bool isNdb = navaid.kind == NavaidKind::beacon;
    if (!navaid.frequency)
        return "---.--";
    constexpr int kilohertzPerHundredth = 10;
    const double units = *navaid.frequency / (isNdb ? 1 : kilohertzPerHundredth);
    std::string text = zeroPadded(std::llround(units), 3);
    if (!isNdb)
        text.insert(text.end() - 2, '.');
    return text;
}

std::optional<ChartFile> chartOf(const NavaidIndex& navaids, const StationChoice& choice,
                                 double size) {
    ChartFile chart;
    std::vector<GeoPosition*> places;
    for (std::size_t i = 0; i < slotCount; ++i)
        if (choice[i]) {
            chart.stations[i] = describe(navaids[*choice[i]]);
            places.push_back(&*chart.stations[i].position);
        }
    if (places.empty())
        return {};
    makeLongitudesRunOn(places);
    if (!std::ranges::all_of(places, [](const GeoPosition* place) { return fitsChart(*place); }))
        return {};
    if (const auto& localizer = inSlot(choice, Slot::localizer))
        chart.locCourse = wholeDegrees(navaids[*localizer].course + wayAround);
    placeEmptySlots(chart, *places.front());
    frame(chart, size);
    return fitsChart(*chart.aircraft) ? std::optional(chart) : std::nullopt;
}

} // namespace tarnel
