#pragma once

#include "core/drawing_surface.h"
#include "window/chart/chart_frame.h"

#include <QPixmap>
#include <QPolygonF>

#include <span>

class QPainter;

namespace tarnel {

/// `ChartDots`: paints dots of one colour from a pixmap that it keeps: a long flight has
/// thousands, and each would cost as much as a line.
class ChartDots {
  public:
    /// Dots of `diameter` logical pixels, to a quarter of the device's pixels.
    void paint(QPainter& painter, const ChartFrame& frame, std::span<const Dot> dots,
               double diameter);

  private:
    struct Look {
        double diameter = 0;
        double pixelRatio = 0;
        Colour colour = 0;
        bool operator==(const Look&) const = default;
    };

    void makeCells(const Look& wanted);

    Look look;
    int side = 0;  ///< of a cell, device pixels
    QPixmap cells; ///< the dot at each place within a pixel
};

/// Dots as one path, which takes little room in a file.
void strokeDots(QPainter& painter, const QPolygonF& middles, double diameter, const QColor& colour);

} // namespace tarnel
