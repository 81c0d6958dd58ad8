#pragma once

#include "core/drawing_surface.h"

#include <QPainterPath>

#include <map>
#include <string>

namespace tarnel {

/// A numeral, and a shape that is a little larger all around.
struct TurnedNumeral {
    QPainterPath body;
    QPainterPath edge;
};

/// Keeps the outlines of a card's numerals and turns them to their places.
class NumeralShapes {
  public:
    /// A numeral at its place in a control of `size` twips, its head away from the middle;
    /// `scale` is pixels a twip.
    [[nodiscard]] TurnedNumeral turned(const Label& numeral, double size, double scale);

  private:
    [[nodiscard]] const TurnedNumeral& outline(const std::string& caption);

    std::map<std::string, TurnedNumeral> outlines; ///< one em high, about their middles
};

} // namespace tarnel
