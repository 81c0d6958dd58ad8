#pragma once

#include "chart/chart_picture.h"
#include "strings/string_table.h"
#include "window/chart/chart_frame.h"

class QPainter;

namespace tarnel {

/// Paints the read-out of a station that is dragged: a plate beside the pointer that stays on the
/// paper, with a line for each other station, distances and bearings in columns.
void paintStationReadout(QPainter& painter, const ChartFrame& frame, const ChartPicture& picture,
                         const StringTable& texts);

} // namespace tarnel
