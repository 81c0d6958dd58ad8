#include "window/chart/chart_frame.h"

#include "window/widgets/look.h"

#include <algorithm>
#include <cmath>

namespace tarnel {

namespace {

constexpr double symbolPaper = 544;
constexpr double smallestSymbols = 0.75;
constexpr double largestSymbols = 2;

/// Lettering keeps its size over the usual papers; it gives way on very small ones and grows on
/// large ones.
constexpr double smallPaper = 480;
constexpr double largePaper = 760;
constexpr double smallestText = 0.8;

double textScaleOf(double side) {
    if (side < smallPaper)
        return std::max(smallestText, side / smallPaper);
    return std::max(1.0, side / largePaper);
}

} // namespace

ChartFrame::ChartFrame(double paperSide, double paperTwips, double devicePixelRatio)
    : side(paperSide),
      twips(paperTwips),
      pixelRatio(devicePixelRatio),
      pixelsPerTwip(twips > 0 ? side / twips : 0),
      symbolScale(std::clamp(side / symbolPaper, smallestSymbols, largestSymbols)),
      textScale(textScaleOf(side)),
      paper(0, 0, side, side),
      nameFont(look::font(look::captionType * textScale, QFont::Bold)),
      frequencyFont(look::font(look::unitType * textScale)),
      lineFont(look::font(look::unitType * textScale, QFont::Bold)),
      vectorFont(look::font(look::scaleType * textScale, QFont::Bold)),
      smallFont(look::font(look::scaleType * textScale)) {}

QPointF ChartFrame::snapped(QPointF point) const {
    return {std::round(point.x() * pixelRatio) / pixelRatio,
            std::round(point.y() * pixelRatio) / pixelRatio};
}

} // namespace tarnel
