#include "paper/line_lettering.h"

#include "paper/line_clipping.h"
#include "paper/line_layout.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace tarnel {

namespace {

constexpr double lineGap = 2; ///< between a line and its text
constexpr double shortestLettered = 90;
/// Where along the visible line the lettering may stand, the best place first.
constexpr double letteringPlaces[] = {0.66, 0.74, 0.58, 0.82, 0.5, 0.9, 0.42, 0.34};
/// The same for the texts beside the wind triangle.
constexpr double vectorPlaces[] = {0.5, 0.62, 0.4, 0.74, 0.86, 0.3};

/// The first of `shares` whose area covers none of `occupied`; the first of all if there is none.
template <class AreaAt>
double freeShare(std::span<const double> shares, std::span<const Box> occupied, AreaAt areaAt) {
    for (const double share : shares) {
        const Box area = areaAt(share);
        if (std::none_of(occupied.begin(), occupied.end(),
                         [&](const Box& other) { return other.overlaps(area); }))
            return share;
    }
    return shares.front();
}

} // namespace

std::optional<LineLettering> letteringAlong(const PaperFrame& frame, const Line& course,
                                            RoomNeeded text, std::span<const Box> occupied) {
    const auto visible = clipped(asRay(frame, course), frame.sheet());
    if (!course.visible || !visible || visible->length() < shortestLettered)
        return std::nullopt;
    const double share = freeShare(letteringPlaces, occupied, [&](double tried) {
        return Box::about(visible->at(tried), {text.width, text.width});
    });
    const Spot way = visible->way().x < 0 ? -visible->way() : visible->way();
    return LineLettering{
        visible->at(share),
        std::atan2(way.y, way.x) * 180 / std::numbers::pi,
        {-text.width / 2, -(text.height + lineGap), text.width, text.height},
    };
}

Spot awayFrom(const Stroke& line, Spot other, bool otherwiseUp) {
    const double length = line.length();
    if (length == 0)
        return {0, otherwiseUp ? -1.0 : 1.0};
    const Spot across{line.way().y / length, -line.way().x / length};
    const Spot towards = other - line.from;
    const double side = across.x * towards.x + across.y * towards.y;
    if (std::abs(side) >= 1)
        return side > 0 ? -across : across;
    const bool pointsUp = across.y < 0 || (across.y == 0 && across.x > 0);
    return pointsUp == otherwiseUp ? across : -across;
}

Box plateBeside(const Stroke& line, Spot outwards, RoomNeeded text, std::span<const Box> occupied) {
    if (!hasDirection(line))
        return {};
    const double reach =
        std::abs(outwards.x) * text.width / 2 + std::abs(outwards.y) * text.height / 2;
    const auto plateAt = [&](double share) {
        return Box::about(line.at(share) + outwards * (reach + lineGap), text);
    };
    return plateAt(freeShare(vectorPlaces, occupied, plateAt));
}

} // namespace tarnel
