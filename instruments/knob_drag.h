#pragma once

#include "core/rounding.h"

#include <cstdint>

namespace tarnel {

/// The left button turns a knob at its own speed, any other at another.
enum class MouseButton { left, other };

/// A sideways drag on a turning knob: where it was pressed, and the value it counts from.
class KnobDrag {
  public:
    explicit KnobDrag(double firstBase = 0) : baseValue(firstBase) {}

    /// `x` in twips from the knob's left edge. A press left of the edge is no drag.
    void press(double x) { start = toInt16(x + 1); }
    void release(double value) {
        start = 0;
        baseValue = value;
    }
    /// The value was set by somebody else: the next drag counts from there, one under way doesn't.
    void rebase(double value) {
        if (!active())
            baseValue = value;
    }

    [[nodiscard]] bool active() const { return start > 0; }
    [[nodiscard]] double base() const { return baseValue; }
    /// Twips to the right of the press.
    [[nodiscard]] double travel(double x) const { return x - (start - 1); }

  private:
    std::int16_t start = 0;
    double baseValue;
};

} // namespace tarnel
