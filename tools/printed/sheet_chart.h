#pragma once

#include "core/geo_position.h"
#include "engine/user_control_2.h"
#include "strings/string_table.h"

#include <QPicture>

#include <span>

namespace tarnel {

/// Shows a flight and the stations that it is about as large as they fit on a printed sheet. `way`
/// must not be empty.
void frameOnSheet(UserControl2& simulation, std::span<const GeoPosition> way,
                  std::span<const GeoPosition> stations);

/// The chart of a trainer as lines and areas, `side` units wide and high.
[[nodiscard]] QPicture sheetChart(const UserControl2& simulation, const StringTable& texts,
                                  double side);

} // namespace tarnel
