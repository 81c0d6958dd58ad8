#pragma once

#include "paper/shapes.h"

#include <optional>

namespace tarnel {

/// The part of `line` within `area`, in its direction, or nothing. A line that only touches the
/// border counts. Ends that are not finite numbers give nothing.
[[nodiscard]] std::optional<Stroke> clipped(const Stroke& line, const Box& area);

} // namespace tarnel
