#pragma once

#include "core/drawing_surface.h"

#include <QFont>
#include <QLineF>
#include <QPointF>
#include <QRectF>

namespace tarnel {

/// `ChartFrame`: how the chart's twips lie on the paper's pixels, and how large lettering and
/// symbols are on a paper of that size.
struct ChartFrame {
    /// A paper of `paperSide` logical pixels that shows `paperTwips` x `paperTwips`.
    ChartFrame(double paperSide, double paperTwips, double devicePixelRatio);

    [[nodiscard]] QPointF at(Point point) const {
        return {point.x * pixelsPerTwip, point.y * pixelsPerTwip};
    }
    [[nodiscard]] QLineF along(const Line& line) const { return {at(line.from), at(line.to)}; }
    /// The nearest place to `point` that falls on the device's pixels.
    [[nodiscard]] QPointF snapped(QPointF point) const;

    /// Whether this is the frame for these values.
    [[nodiscard]] bool fits(double paperSide, double paperTwips, double devicePixelRatio) const {
        return side == paperSide && twips == paperTwips && pixelRatio == devicePixelRatio;
    }

    double side;
    double twips;
    double pixelRatio;
    double pixelsPerTwip;
    double symbolScale; ///< 1 on a paper of 544 pixels
    double textScale;   ///< 1 on papers of 480 to 760 pixels
    QRectF paper;
    QFont nameFont;
    QFont frequencyFont;
    QFont lineFont; ///< lettering along lines
    QFont vectorFont;
    QFont smallFont;
};

} // namespace tarnel
