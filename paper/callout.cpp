#include "paper/callout.h"

#include <limits>
#include <numbers>

namespace tarnel {

namespace {

constexpr double distances[] = {34, 52, 76, 108, 150, 200}; ///< px, from the place to the box
constexpr int directions = 24;
constexpr double calloutMargin = 4; ///< that the box keeps from all else

// What a box costs, in square pixels that it covers.
constexpr double costOfSpot = 40;
constexpr double costOfPixelAway = 1.5;

Spot nearestIn(const Box& box, Spot place) {
    return {std::clamp(place.x, box.left, box.right()), std::clamp(place.y, box.top, box.bottom())};
}

double costOf(const Box& box, Spot place, std::span<const Box> occupied,
              std::span<const Spot> track) {
    const Box around = box.grownBy(calloutMargin);
    double cost = costOfPixelAway * Stroke{place, nearestIn(box, place)}.length();
    for (const Box& area : occupied)
        cost += around.sharedArea(area);
    for (const Spot& spot : track)
        cost += around.contains(spot) ? costOfSpot : 0;
    return cost;
}

} // namespace

Callout placeCallout(Spot place, RoomNeeded text, const Box& sheet, std::span<const Box> occupied,
                     std::span<const Spot> track) {
    Box best;
    double lowest = std::numeric_limits<double>::infinity();
    for (const double away : distances)
        for (int i = 0; i < directions; ++i) {
            const double angle = 2 * std::numbers::pi * i / directions;
            const Spot way{std::sin(angle), -std::cos(angle)};
            const Spot middle =
                place + Spot{way.x * (away + text.width / 2), way.y * (away + text.height / 2)};
            Box box = Box::about(middle, text);
            box.left = std::clamp(
                box.left, sheet.left + calloutMargin,
                std::max(sheet.left + calloutMargin, sheet.right() - calloutMargin - text.width));
            box.top = std::clamp(
                box.top, sheet.top + calloutMargin,
                std::max(sheet.top + calloutMargin, sheet.bottom() - calloutMargin - text.height));
            const double cost = costOf(box, place, occupied, track);
            if (cost < lowest) {
                lowest = cost;
                best = box;
            }
        }
    return {best, {place, nearestIn(best, place)}};
}

} // namespace tarnel
