#pragma once

#include <algorithm>
#include <cmath>

/// Plane shapes on the chart's paper, in logical pixels, x to the right, y downwards.
namespace tarnel {

struct Spot {
    double x = 0;
    double y = 0;
    bool operator==(const Spot&) const = default;
    Spot operator+(Spot way) const { return {x + way.x, y + way.y}; }
    Spot operator-(Spot other) const { return {x - other.x, y - other.y}; }
    Spot operator-() const { return {-x, -y}; }
    Spot operator*(double factor) const { return {x * factor, y * factor}; }
};

/// How much room something takes.
struct RoomNeeded {
    double width = 0;
    double height = 0;
};

/// A straight line with a direction.
struct Stroke {
    Spot from;
    Spot to;

    [[nodiscard]] Spot way() const { return to - from; }
    [[nodiscard]] double length() const { return std::hypot(way().x, way().y); }
    /// The place at that share of its length.
    [[nodiscard]] Spot at(double share) const { return from + way() * share; }
    [[nodiscard]] Spot middle() const { return (from + to) * 0.5; }
};

struct Box {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;
    bool operator==(const Box&) const = default;

    /// The box of that size around `middle`.
    [[nodiscard]] static Box about(Spot middle, RoomNeeded size) {
        return {middle.x - size.width / 2, middle.y - size.height / 2, size.width, size.height};
    }

    [[nodiscard]] double right() const { return left + width; }
    [[nodiscard]] double bottom() const { return top + height; }
    [[nodiscard]] Spot middle() const { return {left + width / 2, top + height / 2}; }
    [[nodiscard]] bool empty() const { return width <= 0 || height <= 0; }
    /// Its edges moved outwards by `margin`.
    [[nodiscard]] Box grownBy(double margin) const {
        return {left - margin, top - margin, width + 2 * margin, height + 2 * margin};
    }
    [[nodiscard]] bool contains(Spot spot) const {
        return spot.x >= left && spot.x <= right() && spot.y >= top && spot.y <= bottom();
    }
    [[nodiscard]] bool contains(const Box& other) const {
        return other.left >= left && other.right() <= right() && other.top >= top &&
               other.bottom() <= bottom();
    }
    /// The area that both cover, in square pixels.
    [[nodiscard]] double sharedArea(const Box& other) const {
        const double across = std::min(right(), other.right()) - std::max(left, other.left);
        const double down = std::min(bottom(), other.bottom()) - std::max(top, other.top);
        return std::max(0.0, across) * std::max(0.0, down);
    }
    /// Boxes that only touch don't overlap, and an empty one overlaps nothing.
    [[nodiscard]] bool overlaps(const Box& other) const { return sharedArea(other) > 0; }
};

} // namespace tarnel
