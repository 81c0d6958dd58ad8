#pragma once

#include <QLineF>
#include <QRectF>

#include <optional>

namespace tarnel {

/// The part of `line` within `area`, in its direction, or nothing. A line that only touches the
/// border counts. Ends that are not finite numbers give nothing.
[[nodiscard]] std::optional<QLineF> clipped(const QLineF& line, const QRectF& area);

} // namespace tarnel
