#pragma once

#include "tools/approach/approach_sheet.h"

class QPainter;

namespace tarnel {

/// What is read before anything else: place and procedure, the localizer, the final course, where
/// the descent begins, the missed approach.
void paintHead(QPainter& painter, const QRectF& place, const ApproachSheet& sheet);

} // namespace tarnel
