#pragma once

#include "core/drawing_surface.h"

#include <QFont>
#include <QPainterPath>
#include <QTransform>

#include <map>
#include <string>

namespace tarnel {

/// A numeral, and a shape that is a little larger all around.
struct TurnedNumeral {
    QPainterPath body;
    QPainterPath edge;
};

/// A numeral as text: where a painter stands that draws it, and where on its line it begins.
struct NumeralText {
    QTransform place;
    QPointF start;
    QFont font;
};

/// How wide the pen is that goes around a numeral as text, in the font's units.
constexpr double numeralTextEdge = 18;

/// Keeps the outlines of a card's numerals and turns them to their places.
class NumeralShapes {
  public:
    /// A numeral at its place in a control of `size` twips, its head away from the middle;
    /// `scale` is pixels a twip.
    [[nodiscard]] TurnedNumeral turned(const Label& numeral, double size, double scale);

    /// The same as text.
    [[nodiscard]] static NumeralText text(const Label& numeral, double size, double scale);

  private:
    [[nodiscard]] const TurnedNumeral& outline(const std::string& caption);

    std::map<std::string, TurnedNumeral> outlines; ///< one em high, about their middles
};

} // namespace tarnel
