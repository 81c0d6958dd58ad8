#pragma once

#include "paper/shapes.h"

#include <span>

namespace tarnel {

/// A text that speaks of a place on the paper, and the line that joins them.
struct Callout {
    Box box;
    Stroke leader; ///< from the place to the edge of the box
};

/// Gives a text a box within `sheet` that is near `place` and covers as little as can be of the
/// `occupied` areas and of the spots of a `track`.
[[nodiscard]] Callout placeCallout(Spot place, RoomNeeded text, const Box& sheet,
                                   std::span<const Box> occupied, std::span<const Spot> track);

} // namespace tarnel
