#pragma once

#include "paper/paper_frame.h"

#include <optional>
#include <span>

namespace tarnel {

/// A text that runs along a line, above it and never upside down.
struct LineLettering {
    Spot on;         ///< the place on the line that it stands at
    double turn = 0; ///< degrees clockwise, -90 to 90
    Box plate;       ///< about `on`, before it is turned
};

/// Letters a course line where its text covers none of the `occupied` areas, at about two thirds of
/// what is visible of it. Nothing on a line that is hidden, or of which too little is to be seen.
[[nodiscard]] std::optional<LineLettering> letteringAlong(const PaperFrame& frame,
                                                          const Line& course, RoomNeeded text,
                                                          std::span<const Box> occupied);

/// The unit vector across `line` that points away from `other`; upwards, or to the right of an
/// upright one, where they coincide and `otherwiseUp`, else the other way.
[[nodiscard]] Spot awayFrom(const Stroke& line, Spot other, bool otherwiseUp);

/// The plate of a text beside a line, on the side that `outwards` points to, near the middle or
/// where it covers none of the `occupied` areas. Empty beside a line without a direction.
[[nodiscard]] Box plateBeside(const Stroke& line, Spot outwards, RoomNeeded text,
                              std::span<const Box> occupied);

} // namespace tarnel
