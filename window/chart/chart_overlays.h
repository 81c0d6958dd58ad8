#pragma once

#include "paper/grid.h"
#include "paper/plates.h"
#include "window/chart/chart_frame.h"

#include <QString>

class QPainter;

namespace tarnel {

/// Lines of 1, 5 and 10 NM; those that would stand too close are left out.
void paintGrid(QPainter& painter, const ChartFrame& frame, const GridPlace& grid);

void paintScaleBar(QPainter& painter, const ChartFrame& frame, const ScaleBar& scale,
                   const QString& unit);

/// The north arrow, turned by `rotation` degrees.
void paintNorthArrow(QPainter& painter, const ChartFrame& frame, double rotation,
                     const QString& letter);

void paintHelp(QPainter& painter, const ChartFrame& frame, const QString& text);

/// The line around the paper.
void paintPaperEdge(QPainter& painter, const ChartFrame& frame);

} // namespace tarnel
