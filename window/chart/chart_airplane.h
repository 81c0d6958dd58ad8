#pragma once

#include "chart/chart_picture.h"
#include "window/chart/chart_frame.h"

#include <QRectF>

class QPainter;

namespace tarnel {

/// The miniature airplane as a silhouette that reaches to the ends of its three lines.
void paintAirplane(QPainter& painter, const ChartFrame& frame, const AirplaneLines& lines);

/// What the airplane covers, or nothing while it is hidden.
[[nodiscard]] QRectF airplaneArea(const ChartFrame& frame, const AirplaneLines& lines);

} // namespace tarnel
