#include "paper/line_layout.h"

#include "paper/line_clipping.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace tarnel {

namespace {

constexpr double arrowLength = 9;
constexpr double arrowHalfWidth = 3.5;
constexpr double shortestArrow = 2;

} // namespace

Stroke asRay(const PaperFrame& frame, const Line& line) {
    Stroke ray = frame.stroke(line);
    const double length = ray.length();
    const double needed = Stroke{ray.from, frame.sheet().middle()}.length() + frame.side;
    if (length > 0 && length < needed)
        ray.to = ray.from + ray.way() * (needed / length);
    return ray;
}

std::optional<DashedStroke> dashedRay(const PaperFrame& frame, const Line& line,
                                      std::span<const double> pattern, double penWidth) {
    const Stroke whole = asRay(frame, line);
    const auto visible = clipped(whole, frame.beyondEdges());
    if (!line.visible || !visible)
        return std::nullopt;
    const double period = std::accumulate(pattern.begin(), pattern.end(), 0.0);
    const double cutOff = Stroke{whole.from, visible->from}.length();
    return DashedStroke{*visible, std::fmod(cutOff / penWidth, period)};
}

std::optional<ArrowShape> arrowAlong(const PaperFrame& frame, const Stroke& line) {
    if (!hasDirection(line) || !clipped(line, frame.beyondEdges()))
        return std::nullopt;
    const double length = line.length();
    const double fullHead = arrowLength * frame.symbolScale;
    const double head = std::min(fullHead, length);
    const double spread = arrowHalfWidth * frame.symbolScale * head / fullHead;
    const Spot direction = line.way() * (1 / length);
    const Spot across{-direction.y * spread, direction.x * spread};
    const Spot base = line.to - direction * head;
    return ArrowShape{clipped({line.from, base + direction}, frame.beyondEdges()),
                      {line.to, base + across, base - across}};
}

bool hasDirection(const Stroke& line) {
    return line.length() >= shortestArrow;
}

} // namespace tarnel
