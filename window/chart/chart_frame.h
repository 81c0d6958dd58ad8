#pragma once

#include "paper/paper_frame.h"
#include "window/chart/paper_shapes.h"

#include <QFont>

namespace tarnel {

/// What a chart is painted for: a screen, with pixmaps that make it quick, or a printed sheet, with
/// lines, areas and full colours alone, which stay sharp and small.
enum class ChartMedium { screen, sheet };

/// Of the paper below the lettering of lines and arrows.
inline constexpr double plateOpacity = 0.85;

/// `ChartFrame`: the paper's frame as the painter takes it, and the fonts of that size.
struct ChartFrame : PaperFrame {
    ChartFrame(double paperSide, double paperTwips, double devicePixelRatio,
               ChartMedium paintedFor = ChartMedium::screen);

    [[nodiscard]] QPointF at(Point point) const { return toQt(spot(point)); }
    [[nodiscard]] QLineF along(const Line& line) const { return toQt(stroke(line)); }

    ChartMedium medium;
    QRectF paper;
    QFont nameFont;
    QFont frequencyFont;
    QFont lineFont; ///< lettering along lines
    QFont vectorFont;
    QFont smallFont;
};

} // namespace tarnel
