#pragma once

#include "navdata/navaid_index.h"
#include "persistence/chart_file.h"

#include <optional>

namespace tarnel {

/// Whether a chart can hold a station there: not between 1 degree south and the equator, as a
/// chart's positions have their sign on the whole degrees, and not within a degree of the poles.
[[nodiscard]] bool fitsChart(const GeoPosition& place);

/// The chart of the stations chosen, north up and framed for a paper of `size` twips, at a scale of
/// 4 NM or less per 500 twips; the aircraft stands in its middle. The localizer's course is that of
/// its feather, so the way that one flies in on turned round. An empty slot is switched off.
///
/// Where the date line or the zero meridian is near, all longitudes go on from 180 or 359, so that
/// they never jump. Nothing if no station is chosen or `fitsChart` rules one or the middle out.
[[nodiscard]] std::optional<ChartFile> chartOf(const NavaidIndex& navaids,
                                               const StationChoice& choice, double size);

/// As a chart writes it: MHz with two decimals, of an NDB whole kHz; dashes if there is none.
[[nodiscard]] std::string frequencyText(const Navaid& navaid);

} // namespace tarnel
