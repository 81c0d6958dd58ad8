#include "window/widgets/line_clipping.h"

#include <algorithm>
#include <cmath>

namespace tarnel {

namespace {

/// The stretch of a line that is left, as fractions of its length.
struct Stretch {
    double from = 0;
    double to = 1;

    /// Keeps what lies in `low` to `high` along one axis. False if nothing is left.
    bool keep(double start, double delta, double low, double high) {
        if (delta == 0)
            return start >= low && start <= high;
        const double first = (low - start) / delta;
        const double second = (high - start) / delta;
        from = std::max(from, std::min(first, second));
        to = std::min(to, std::max(first, second));
        return from <= to;
    }
};

} // namespace

std::optional<QLineF> clipped(const QLineF& line, const QRectF& area) {
    if (!std::isfinite(line.dx()) || !std::isfinite(line.dy()))
        return std::nullopt;
    Stretch stretch;
    if (!stretch.keep(line.x1(), line.dx(), area.left(), area.right()) ||
        !stretch.keep(line.y1(), line.dy(), area.top(), area.bottom()))
        return std::nullopt;
    return QLineF(line.pointAt(stretch.from), line.pointAt(stretch.to));
}

} // namespace tarnel
