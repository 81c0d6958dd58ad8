#pragma once

class QColor;
class QPainter;
class QRectF;

namespace tarnel {

/// Fills a rectangle with round corners, widened to whole logical pixels: its middle as such, and
/// only two strips as the path that it is. Of a smooth path each line has several runs of pixels,
/// and Qt's raster hands more than a hundred or so of them to a pool of threads, which for shapes
/// as small as ours takes many times the work of filling them.
void fillRounded(QPainter& painter, const QRectF& area, double radius, const QColor& colour);

} // namespace tarnel
