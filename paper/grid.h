#pragma once

#include "paper/paper_frame.h"

#include <vector>

namespace tarnel {

/// Where the grid lies on the paper.
struct GridPlace {
    Spot origin; ///< a crossing of two ten-mile lines
    double pixelsPerMile = 0;
    double rotation = 0; ///< degrees clockwise
    bool operator==(const GridPlace&) const = default;
};

enum class GridLine { mile, fiveMiles, tenMiles };

/// The lines of one kind that are not of a stronger one, in both directions, cut off at the paper's
/// edge. None where those of the kind would stand too close. Of a grid that is not turned, each
/// lies in the middle of device pixels: one sharp pixel wide.
[[nodiscard]] std::vector<Stroke> gridLines(const PaperFrame& frame, const GridPlace& grid,
                                            GridLine kind);

} // namespace tarnel
