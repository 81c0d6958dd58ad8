#include "paper/paper_frame.h"

#include "core/stations.h"

#include <algorithm>

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

constexpr double rim = 2;
constexpr double symbolReach = 12;
constexpr double ndbReach = 18;
constexpr double roseShare = 0.0735; ///< of the paper's side
constexpr double smallestRose = 24;

double textScaleOf(double side) {
    if (side < smallPaper)
        return std::max(smallestText, side / smallPaper);
    return std::max(1.0, side / largePaper);
}

} // namespace

PaperFrame::PaperFrame(double paperSide, double paperTwips, double devicePixelRatio)
    : side(paperSide),
      twips(paperTwips),
      pixelRatio(devicePixelRatio),
      pixelsPerTwip(twips > 0 ? side / twips : 0),
      symbolScale(std::clamp(side / symbolPaper, smallestSymbols, largestSymbols)),
      textScale(textScaleOf(side)) {}

Box PaperFrame::beyondEdges() const {
    return sheet().grownBy(rim);
}

double PaperFrame::symbolRadius(std::size_t slot) const {
    return symbolScale * (hasDme(slot) ? symbolReach : ndbReach);
}

double PaperFrame::outerRadius(std::size_t slot) const {
    const bool hasRose = hasDme(slot) && static_cast<Slot>(slot) != Slot::localizer;
    return hasRose ? roseRadius() + northMarkHeight * symbolScale : symbolRadius(slot);
}

double PaperFrame::roseRadius() const {
    return std::max(smallestRose, roseShare * side);
}

} // namespace tarnel
