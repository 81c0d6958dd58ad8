#pragma once

#include "paper/paper_frame.h"

#include <array>
#include <optional>
#include <span>

namespace tarnel {

/// A radial goes on to the edge of the paper, however far its station is.
[[nodiscard]] Stroke asRay(const PaperFrame& frame, const Line& line);

/// What of a ray is painted, with dashes that stay where they are when the paper's edge cuts off
/// its beginning.
struct DashedStroke {
    Stroke visible;
    double offset = 0; ///< of the dashes, in pen widths
};
/// Nothing for a line that is hidden or off the paper. `pattern` is in pen widths.
[[nodiscard]] std::optional<DashedStroke> dashedRay(const PaperFrame& frame, const Line& line,
                                                    std::span<const double> pattern,
                                                    double penWidth);

/// A shaft, as much of it as is on the paper, and a head whose tip comes first.
struct ArrowShape {
    std::optional<Stroke> shaft;
    std::array<Spot, 3> head;
};
/// An arrow along a line with a direction, or nothing off the paper.
[[nodiscard]] std::optional<ArrowShape> arrowAlong(const PaperFrame& frame, const Stroke& line);

/// Whether a line is long enough to have a direction.
[[nodiscard]] bool hasDirection(const Stroke& line);

} // namespace tarnel
