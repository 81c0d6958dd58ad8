#pragma once

#include "authoring/course_builder.h"

#include <string>
#include <string_view>
#include <vector>

namespace tarnel {

/// From the runway's far end to the localizer's antenna, NM.
constexpr double localizerBehindRunway = 300 / 1852.0;

/// True for a source of charts, which has tables `[[chart]]`. Throws PlanError if it is no TOML.
[[nodiscard]] bool isChartSource(std::string_view text, const std::string& file);

/// The charts of a TOML source as files such as "maps/eddk.map".
///
/// The localizer's antenna is placed behind the runway's far end, its course along the runway. The
/// aircraft starts amidst the stations, at a scale that shows them all. Throws PlanError for the
/// first mistake, unknown keys among them.
[[nodiscard]] std::vector<BuiltFile> buildCharts(std::string_view text, const std::string& file);

} // namespace tarnel
