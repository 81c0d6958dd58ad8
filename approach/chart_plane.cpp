#include "approach/chart_plane.h"

#include "chart/chart_drawing.h"
#include "core/station_geometry.h"

namespace tarnel {

GeoPosition centreOf(const SessionFile& session) {
    const Sample& last = session.samples.back();
    const int select = session.mapCenterSelect.value_or(1);
    constexpr int firstStation = static_cast<int>(MapCentre::vor1);
    if (select < firstStation || select > static_cast<int>(MapCentre::localizer))
        return {last.traceLat, last.traceLon};
    return last.traceStations[static_cast<std::size_t>(select - firstStation)];
}

ChartPlane::ChartPlane(const SessionFile& session, std::int16_t twipsPerMile, ChartPoint centre)
    : stations(defaultStations()), feather(session.samples.back().traceLocCourse) {
    view.centreOn(toSplit(centreOf(session)));
    view.plot.mapScaleTwips = twipsPerMile;
    view.plot.mapRefX = centre.x;
    view.plot.mapRefY = centre.y;
    for (std::size_t slot = 0; slot < slotCount; ++slot) {
        stations[slot].position = toSplit(session.samples.back().traceStations[slot]);
        const ChartStation& told = session.stations[slot];
        stations[slot].labelOffsetX = told.labelOffsetX;
        stations[slot].labelOffsetY = told.labelOffsetY;
        showStation(picture, slot, true, hasDme(slot));
    }
    RadialInputs inputs;
    inputs.locCourse = feather;
    DrawNAVSymbols(picture, view, stations, 0, inputs);
    showLocalizer(picture, true);
}

Point ChartPlane::place(const GeoPosition& position) const {
    MapView own = view; // a copy, as placing leaves traces in the view
    ChartPlace place;
    own.placeOnChart(position, 0, place);
    return place.wide;
}

double ChartPlane::finalCourse() const {
    return circle(feather + 180);
}

} // namespace tarnel
