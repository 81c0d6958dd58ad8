#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace tarnel {

/// A colour as a 24-bit word 0xBBGGRR.
using Colour = std::uint32_t;

/// A place on a surface in twips, x to the right, y downwards.
struct Point {
    double x = 0;
    double y = 0;
    bool operator==(const Point&) const = default;
};

/// An area in twips.
struct Area {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;
    bool operator==(const Area&) const = default;
    [[nodiscard]] bool contains(Point p) const {
        return p.x >= left && p.x < left + width && p.y >= top && p.y < top + height;
    }
};

struct Line {
    Point from;
    Point to;
    Colour colour = 0;
    int width = 1; ///< in pixels at size 1
    bool visible = false;
    bool operator==(const Line&) const = default;
};

/// A filled round, placed by its centre.
struct Round {
    Point centre;
    double diameter = 0;
    Colour colour = 0xFFFFFF;
    bool visible = false;
    bool operator==(const Round&) const = default;
};

/// A short text. `anchor` is its centre if `centred`, else its upper left corner.
struct Label {
    Point anchor;
    std::string caption;
    double fontPoints = 8; ///< 1 point = 20 twips
    Colour colour = 0;
    Colour back = 0xFFFFFF;
    bool centred = false;
    bool visible = false;
    bool operator==(const Label&) const = default;
};

struct Picture {
    Area area;
    std::string file; ///< path as given; the name is matched without regard to case
    bool visible = false;
    bool operator==(const Picture&) const = default;
};

/// A dot of size one.
struct Dot {
    std::int16_t x = 0;
    std::int16_t y = 0;
    Colour colour = 0;
};

/// The primitives that a control draws with are plain structs of the control; it changes them
/// through this surface, which counts real changes. A view paints what stands there and needs to
/// paint again only when `revision` has moved.
class DrawingSurface {
  public:
    [[nodiscard]] std::uint64_t revision() const { return changes; }

    /// Replaces a primitive, or one field of it, and counts a change if the value differs.
    template <class T>
    void set(T& field, const T& value) {
        if (field == value)
            return;
        field = value;
        ++changes;
    }
    template <class T>
    void show(T& primitive, bool visible) {
        set(primitive.visible, visible);
    }
    void place(Line& line, Point from, Point to) {
        set(line.from, from);
        set(line.to, to);
    }
    void place(Label& label, Point anchor) { set(label.anchor, anchor); }

    /// Counts a change that was made past `set`.
    void touch() { ++changes; }

  private:
    std::uint64_t changes = 0;
};

/// Dots that stay until they are painted over. The paper is white, so painting a dot over in white
/// removes it: `clear` does that for all of them.
class DotLayer {
  public:
    explicit DotLayer(DrawingSurface& owner) : surface(owner) {}

    void plot(std::int16_t x, std::int16_t y, Colour colour) {
        dots.push_back({x, y, colour});
        surface.touch();
    }
    void clear() {
        if (dots.empty())
            return;
        dots.clear();
        surface.touch();
    }
    [[nodiscard]] const std::vector<Dot>& all() const { return dots; }

  private:
    DrawingSurface& surface;
    std::vector<Dot> dots;
};

} // namespace tarnel
