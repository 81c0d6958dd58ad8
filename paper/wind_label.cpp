#include "paper/wind_label.h"

#include "paper/line_clipping.h"

#include <algorithm>
#include <iterator>
#include <limits>

namespace tarnel {

namespace {

constexpr double gap = 6;           ///< between the airplane and its label
constexpr double cornerReach = 0.7; ///< of that gap, where the label stands off a corner
constexpr double coveredCost = 10;
constexpr double lineCost = 2;
constexpr double dotCost = 0.5;
constexpr double paperCost = 40;
constexpr double placeCost = 0.1; ///< of each place further down the list
constexpr double moveCost = 1;    ///< of leaving the last place

/// Steps to the right and down; the best place first.
constexpr Spot ways[] = {{1, -1}, {-1, -1}, {1, 1}, {-1, 1}, {0, 1}, {0, -1}, {1, 0}, {-1, 0}};

double costOf(const PaperFrame& frame, const ChartPicture& picture, const Box& label,
              std::span<const Box> occupied) {
    double cost = frame.sheet().contains(label) ? 0 : paperCost;
    for (const Box& area : occupied)
        if (area.overlaps(label))
            cost += coveredCost;
    const SpeedVectorLines& lines = picture.speedVectors;
    for (const Line* line : {&lines.air, &lines.wind, &lines.ground, &picture.windLine.line})
        if (line->visible && clipped(frame.stroke(*line), label))
            cost += lineCost;
    for (const DotLayer* layer : {&picture.ahead, &picture.trace})
        for (const Dot& dot : layer->all())
            if (label.contains(
                    frame.spot({static_cast<double>(dot.x), static_cast<double>(dot.y)})))
                cost += dotCost;
    return cost;
}

} // namespace

Box WindLabel::place(const PaperFrame& frame, const ChartPicture& picture, const Box& airplane,
                     Spot middle, RoomNeeded size, std::span<const Box> occupied) {
    const double reach = std::max(airplane.width, airplane.height) / 2 + gap;
    double best = std::numeric_limits<double>::infinity();
    Box label;
    const std::size_t before = last;
    for (std::size_t i = 0; i < std::size(ways); ++i) {
        const Spot way = ways[i];
        const double aside = (way.y == 0 ? reach : reach * cornerReach) + size.width / 2;
        const double along = (way.x == 0 ? reach : reach * cornerReach) + size.height / 2;
        const Box tried = Box::about(middle + Spot{way.x * aside, way.y * along}, size);
        const double cost = costOf(frame, picture, tried, occupied) +
                            placeCost * static_cast<double>(i) + (i == before ? 0 : moveCost);
        if (cost >= best)
            continue;
        best = cost;
        label = tried;
        last = i;
    }
    return label;
}

} // namespace tarnel
