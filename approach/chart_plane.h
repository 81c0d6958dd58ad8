#pragma once

#include "chart/chart_picture.h"
#include "chart/map_view.h"
#include "persistence/session_file.h"

#include <cstdint>

namespace tarnel {

/// Where the chart of a session is centred once it is loaded.
[[nodiscard]] GeoPosition centreOf(const SessionFile& session);

/// `ChartPlane`: the stations of a session on a sheet, in twips. They are laid out by the chart's
/// own code about the centre of the session's chart, at a scale and a place of the sheet's own, so
/// that the sheet shows what the chart shows, larger or smaller.
class ChartPlane {
  public:
    /// The centre of the session's chart lies at `centre` of the sheet.
    ChartPlane(const SessionFile& session, std::int16_t twipsPerMile, ChartPoint centre);
    ChartPlane(const ChartPlane&) = delete;
    ChartPlane& operator=(const ChartPlane&) = delete;

    [[nodiscard]] Point station(Slot slot) const { return inSlot(stations, slot).place.wide; }
    [[nodiscard]] Point place(const GeoPosition& position) const;
    /// The centre of the session's chart.
    [[nodiscard]] GeoPosition centre() const { return toPlain(view.mapCenter); }
    [[nodiscard]] double twips(double miles) const { return miles * view.plot.mapScaleTwips; }
    [[nodiscard]] double miles(double twips) const { return twips / view.plot.mapScaleTwips; }
    /// The course on which the localizer is approached, degrees.
    [[nodiscard]] double finalCourse() const;

    ChartPicture picture; ///< symbols and the localizer's feather

  private:
    MapView view;
    Stations stations;
    double feather; ///< the course on which the localizer's feather leaves it
};

} // namespace tarnel
