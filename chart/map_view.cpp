#include "chart/map_view.h"

#include "core/rounding.h"

#include <cmath>
#include <limits>

namespace tarnel {

namespace {

bool fits16Bits(double value) {
    using Limits = std::numeric_limits<std::int16_t>;
    return value >= Limits::min() && value <= Limits::max();
}

} // namespace

void MapView::centreOn(const SplitPosition& position) {
    plot.mapRef = position;
    mapCenter = position;
}

void MapView::MapCenterSelect(std::int16_t select, const SplitPosition& aircraft,
                              const Stations& stations) {
    constexpr auto first = static_cast<std::int16_t>(MapCentre::vor1);
    if (select == static_cast<std::int16_t>(MapCentre::aircraft))
        mapCenter = aircraft;
    else if (select >= first && select <= static_cast<std::int16_t>(MapCentre::localizer))
        mapCenter = stations[static_cast<std::size_t>(select - first)].position;
    else
        return;
    if (northUpMode)
        plot.mapRef = mapCenter;
}

void MapView::placeOnChart(const GeoPosition& position, double rotation, ChartPlace& place) {
    plot.GeoToMap(position, place);
    if (rotation == 0)
        return;
    const Point turned = RotatePoint(rotation, plot.mapRefPoint(), place.wide);
    place.wide = {roundToEven(turned.x), roundToEven(turned.y)};
    if (fits16Bits(place.wide.x) && fits16Bits(place.wide.y))
        place.point = {static_cast<std::int16_t>(place.wide.x),
                       static_cast<std::int16_t>(place.wide.y)};
}

void MapView::placeAircraft(Aircraft& aircraft) {
    if (northUpMode) {
        plot.GeoToMap(toPlain(aircraft.position), aircraft.place);
        return;
    }
    plot.mapRef = aircraft.position;
    aircraft.place = {{plot.mapRefX, plot.mapRefY}, plot.mapRefPoint()};
}

double MapView::scaleLabelMiles() const {
    return roundTo(500.0 / plot.mapScaleTwips, 1);
}

} // namespace tarnel
