#pragma once

#include "tools/approach/approach_sheet.h"

class QPainter;

namespace tarnel {

/// The plan to scale: stations, radials, the way with its fixes, the runway.
void paintPlan(QPainter& painter, const QRectF& place, const ApproachSheet& sheet);

} // namespace tarnel
