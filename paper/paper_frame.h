#pragma once

#include "core/drawing_surface.h"
#include "paper/shapes.h"

#include <cmath>
#include <cstddef>

namespace tarnel {

/// `PaperFrame`: how the chart's twips lie on the paper's pixels, and how large lettering and
/// symbols are on a paper of that size.
struct PaperFrame {
    /// A paper of `paperSide` logical pixels that shows `paperTwips` x `paperTwips`.
    PaperFrame(double paperSide, double paperTwips, double devicePixelRatio);

    [[nodiscard]] Spot spot(Point point) const {
        return {point.x * pixelsPerTwip, point.y * pixelsPerTwip};
    }
    [[nodiscard]] Stroke stroke(const Line& line) const { return {spot(line.from), spot(line.to)}; }
    [[nodiscard]] Box sheet() const { return {0, 0, side, side}; }
    /// The sheet and a rim, so that no end of a line shows.
    [[nodiscard]] Box beyondEdges() const;

    /// The nearest place to `spot` that falls on the device's pixels.
    [[nodiscard]] Spot snapped(Spot spot) const {
        return {std::round(spot.x * pixelRatio) / pixelRatio,
                std::round(spot.y * pixelRatio) / pixelRatio};
    }

    /// The radius of a station's symbol itself, and that of all that belongs to it.
    [[nodiscard]] double symbolRadius(std::size_t slot) const;
    [[nodiscard]] double outerRadius(std::size_t slot) const;
    /// The radius of the rose around a VOR, to its ring.
    [[nodiscard]] double roseRadius() const;
    /// The height of the mark on the rose's north, at symbol scale 1.
    static constexpr double northMarkHeight = 5;

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
};

} // namespace tarnel
