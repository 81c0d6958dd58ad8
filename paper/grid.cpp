#include "paper/grid.h"

#include "paper/line_clipping.h"

#include <cmath>
#include <numbers>

namespace tarnel {

namespace {

constexpr double closestGridLines = 7;

int milesOf(GridLine kind) {
    return kind == GridLine::mile ? 1 : kind == GridLine::fiveMiles ? 5 : 10;
}

GridLine kindOf(int mile) {
    if (mile % 10 == 0)
        return GridLine::tenMiles;
    return mile % 5 == 0 ? GridLine::fiveMiles : GridLine::mile;
}

/// The grid's own turned coordinates.
struct Turned {
    explicit Turned(const GridPlace& place) : grid(place) {
        if (grid.rotation == 0)
            return;
        const double angle = grid.rotation * (std::numbers::pi / 180);
        sine = std::sin(angle);
        cosine = std::cos(angle);
    }
    [[nodiscard]] Spot toPaper(Spot own) const {
        return Spot{own.x * cosine - own.y * sine, own.x * sine + own.y * cosine} + grid.origin;
    }
    [[nodiscard]] Spot fromPaper(Spot spot) const {
        const Spot way = spot - grid.origin;
        return {way.x * cosine + way.y * sine, way.y * cosine - way.x * sine};
    }

    const GridPlace& grid;
    double sine = 0;
    double cosine = 1;
};

double pixelMiddle(double at, double ratio) {
    return std::floor(at * ratio) / ratio + 0.5 / ratio;
}

Stroke onPixels(const Stroke& line, double ratio) {
    return {{pixelMiddle(line.from.x, ratio), pixelMiddle(line.from.y, ratio)},
            {pixelMiddle(line.to.x, ratio), pixelMiddle(line.to.y, ratio)}};
}

} // namespace

std::vector<Stroke> gridLines(const PaperFrame& frame, const GridPlace& grid, GridLine kind) {
    std::vector<Stroke> result;
    const int every = milesOf(kind);
    const double step = every * grid.pixelsPerMile;
    if (!(step >= closestGridLines) || !std::isfinite(grid.origin.x + grid.origin.y))
        return result;
    const Turned turned(grid);
    const Spot centre = turned.fromPaper(frame.sheet().middle());
    const double reach = std::hypot(frame.side, frame.side) / 2;
    const auto collect = [&](double middle, auto lineAt) {
        const double last = std::floor((middle + reach) / step);
        for (double i = std::ceil((middle - reach) / step); i <= last; ++i) {
            if (kindOf(static_cast<int>(std::fmod(i, 10)) * every) != kind)
                continue;
            const Stroke own = lineAt(i * step);
            const Stroke onPaper{turned.toPaper(own.from), turned.toPaper(own.to)};
            if (const auto line = clipped(onPaper, frame.sheet()))
                result.push_back(grid.rotation == 0 ? onPixels(*line, frame.pixelRatio) : *line);
        }
    };
    collect(centre.x, [&](double at) {
        return Stroke{{at, centre.y - reach}, {at, centre.y + reach}};
    });
    collect(centre.y, [&](double at) {
        return Stroke{{centre.x - reach, at}, {centre.x + reach, at}};
    });
    return result;
}

} // namespace tarnel
