#pragma once

#include "core/drawing_surface.h"

#include <QFont>
#include <QPixmap>
#include <QTransform>

#include <map>
#include <string>

class QPainter;

namespace tarnel {

/// A numeral as text: where a painter stands that draws it, and where on its line it begins.
struct NumeralText {
    QTransform place;
    QPointF start;
    QFont font;
};

/// How wide the pen is that goes around a numeral as text, in the font's units.
constexpr double numeralTextEdge = 18;

/// Paints the numerals of a card at their places, their heads away from its middle.
class NumeralShapes {
  public:
    /// Paints a numeral of a control of `size` twips in white with a fine dark edge; `scale` is
    /// pixels a twip.
    void paint(QPainter& painter, const Label& numeral, double size, double scale);

    /// The same as text.
    [[nodiscard]] static NumeralText text(const Label& numeral, double size, double scale);

  private:
    /// A numeral, upright in the middle of a pixmap of twice the device's pixels: turning filled
    /// outlines takes four times as long as turning pixels, and these stay as sharp.
    struct Cell {
        QPixmap pixels;
        double pixelsAnEm = 0;
    };
    [[nodiscard]] const Cell& cellOf(const std::string& caption, double pixelsAnEm);

    std::map<std::string, Cell> cells;
};

} // namespace tarnel
