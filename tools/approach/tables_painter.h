#pragma once

#include "tools/approach/approach_sheet.h"

class QPainter;

namespace tarnel {

/// Altitudes by DME, and times and rates of descent by ground speed.
void paintTables(QPainter& painter, const QRectF& place, const ApproachSheet& sheet);

/// What a reader has to know of the whole chart.
void paintNotes(QPainter& painter, const QRectF& place, const ApproachSheet& sheet);

} // namespace tarnel
