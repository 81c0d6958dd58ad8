#pragma once

#include "tools/approach/approach_sheet.h"

class QPainter;

namespace tarnel {

/// The sign of the final approach fix.
void paintMalteseCross(QPainter& painter, QPointF at);

/// The approach from the side, over the distance to the localizer's DME.
void paintProfile(QPainter& painter, const QRectF& place, const ApproachSheet& sheet);

} // namespace tarnel
