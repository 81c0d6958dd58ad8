#pragma once

#include "paper/paper_frame.h"
#include "window/chart/paper_shapes.h"

#include <QFont>

namespace tarnel {

/// `ChartFrame`: the paper's frame as the painter takes it, and the fonts of that size.
struct ChartFrame : PaperFrame {
    ChartFrame(double paperSide, double paperTwips, double devicePixelRatio);

    [[nodiscard]] QPointF at(Point point) const { return toQt(spot(point)); }
    [[nodiscard]] QLineF along(const Line& line) const { return toQt(stroke(line)); }

    QRectF paper;
    QFont nameFont;
    QFont frequencyFont;
    QFont lineFont; ///< lettering along lines
    QFont vectorFont;
    QFont smallFont;
};

} // namespace tarnel
