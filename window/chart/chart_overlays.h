#pragma once

#include "window/chart/chart_frame.h"

#include <QRectF>
#include <QString>

class QPainter;

namespace tarnel {

/// Where the grid lies on the paper.
struct GridPlace {
    QPointF origin; ///< a crossing of two ten-mile lines
    double pixelsPerMile = 0;
    double rotation = 0; ///< degrees clockwise
};

/// Lines of 1, 5 and 10 NM; those that would stand too close are left out.
void paintGrid(QPainter& painter, const ChartFrame& frame, const GridPlace& grid);

/// The scale bar: as many miles as fit a length that reads well.
struct ScaleBar {
    ScaleBar(const ChartFrame& frame, double pixelsPerMile);

    double miles = 0; ///< 0 if the scale is none
    QRectF bar;
    QRectF plate;
};
void paintScaleBar(QPainter& painter, const ChartFrame& frame, const ScaleBar& scale,
                   const QString& unit);

/// Where the lamps of the reference stand: above the scale bar. Empty on a chart that is too small
/// for them.
[[nodiscard]] QRectF lampsPlate(const ChartFrame& frame);

/// What the north arrow covers.
[[nodiscard]] QRectF northArrowPlate(const ChartFrame& frame);
void paintNorthArrow(QPainter& painter, const ChartFrame& frame, double rotation,
                     const QString& letter);

/// The help label, at the top centre; below the controls there if it is too long to stand between
/// them.
void paintHelp(QPainter& painter, const ChartFrame& frame, const QString& text);

/// The strip at the top where controls stand on the chart.
[[nodiscard]] QRectF controlStrip(const ChartFrame& frame);

/// The line around the paper.
void paintPaperEdge(QPainter& painter, const ChartFrame& frame);

} // namespace tarnel
