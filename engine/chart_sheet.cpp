#include "engine/chart_sheet.h"

#include "chart/chart_framing.h"
#include "core/rounding.h"

#include <vector>

namespace tarnel {

void ChartSheet::takeSize() {
    Chartsubmodul1& plot = given.scene.view.plot;
    plot.mapRefX = plot.mapRefY = toInt16(given.chart.c_CenterTwips);
}

void ChartSheet::MapCenterSelect() {
    takeSize();
    given.scene.view.MapCenterSelect(given.chart.c_MAPCenterSelect, aircraftCentre(),
                                     given.scene.stations);
}

/// What the chart is centred on when that is the aircraft.
SplitPosition ChartSheet::aircraftCentre() const {
    const FlightScene& scene = given.scene;
    return secretPlace ? scene.view.mapCenter : toSplit(scene.aircraft.published());
}

void ChartSheet::MapScale() {
    MapCenterSelect();
    given.scene.showScale();
    layOut();
}

void ChartSheet::resize() {
    ChartPicture& picture = given.scene.picture;
    picture.surface.set(picture.size, 2 * given.chart.c_CenterTwips);
    takeSize();
    given.scene.view.centreOn(aircraftCentre());
    given.scene.showScale();
    layOut();
}

/// Draws all that stands on the paper where it now lies.
void ChartSheet::layOut() {
    FlightScene& scene = given.scene;
    scene.view.placeAircraft(scene.aircraft);
    scene.redrawChart();
    scene.redrawTrace();
    scene.refresh();
}

void ChartSheet::centreOnAircraft() {
    centreOn(aircraftCentre());
}

void ChartSheet::centreOn(const SplitPosition& centre) {
    given.scene.view.centreOn(centre);
    layOut();
}

void ChartSheet::showChart(const SplitPosition& centre, std::int16_t scale) {
    given.chart.c_MAPscale.setIfChanged(scale);
    centreOn(centre);
}

void ChartSheet::frameStations(std::span<const GeoPosition> aircraftPlaces) {
    const FlightScene& scene = given.scene;
    std::vector<FramedPlace> places = framedStations(scene.stations, given.receivers.c_LocCrs1);
    for (const GeoPosition& position : aircraftPlaces)
        places.push_back({position, framedAircraftRoom});
    const ChartFraming framing = framingOf(places, {scene.picture.size});
    showChart(framing.centre, framing.scale);
}

void ChartSheet::resetView() {
    given.chart.c_MAPnorthUP = 1;
    frameStations();
}

/// The trace comes last here: it is drawn where the step has put the reference point.
void ChartSheet::switchView() {
    FlightScene& scene = given.scene;
    scene.view.northUpMode = given.chart.c_MAPnorthUP == 1;
    scene.turnSymbol();
    scene.view.centreOn(aircraftCentre());
    scene.showScale();
    scene.view.placeAircraft(scene.aircraft);
    scene.redrawChart();
    scene.refresh();
    scene.redrawTrace();
}

} // namespace tarnel
