#include "tools/printed/sheet_chart.h"

#include "chart/chart_framing.h"
#include "window/chart/chart_painter.h"

#include <QPainter>

#include <vector>

namespace tarnel {

void frameOnSheet(UserControl2& simulation, std::span<const GeoPosition> way,
                  std::span<const GeoPosition> stations) {
    std::vector<FramedPlace> places;
    places.reserve(way.size() + stations.size());
    for (const GeoPosition& place : way)
        places.push_back({place, framedAircraftRoom});
    for (const GeoPosition& station : stations)
        places.push_back({station, framedStationRoom});
    const ChartFraming framing = framingOf(places, printedPaper(simulation.picture.size));
    simulation.showChart(framing.centre, framing.scale);
}

QPicture sheetChart(const UserControl2& simulation, const StringTable& texts, double side) {
    constexpr double finely = 8; // places of lettering in a unit
    QPicture picture;
    QPainter painter(&picture);
    ChartPainter(simulation, texts, ChartMedium::sheet).paint(painter, side, finely);
    return picture;
}

} // namespace tarnel
