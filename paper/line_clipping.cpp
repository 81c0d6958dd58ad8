#include "paper/line_clipping.h"

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

std::optional<Stroke> clipped(const Stroke& line, const Box& area) {
    const Spot way = line.way();
    if (!std::isfinite(way.x) || !std::isfinite(way.y))
        return std::nullopt;
    Stretch stretch;
    if (!stretch.keep(line.from.x, way.x, area.left, area.right()) ||
        !stretch.keep(line.from.y, way.y, area.top, area.bottom()))
        return std::nullopt;
    return Stroke{line.at(stretch.from), line.at(stretch.to)};
}

} // namespace tarnel
