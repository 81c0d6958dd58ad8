#pragma once

#include "chart/chart_picture.h"
#include "window/chart/chart_frame.h"

#include <QPixmap>

#include <array>
#include <cstddef>

class QPainter;

namespace tarnel {

/// `ChartSymbols`: paints the symbols of the stations, each from a pixmap that it keeps until size,
/// pixel ratio, facilities or the turn of its rose change.
class ChartSymbols {
  public:
    /// Paints the symbol of `slot` at the station; `rotation` degrees is where north lies.
    void paint(QPainter& painter, const ChartFrame& frame, const StationSymbol& symbol,
               std::size_t slot, double rotation);

  private:
    struct Look {
        SymbolImage image = SymbolImage::none;
        double side = 0;
        double pixelRatio = 0;
        double rotation = 0;
        bool operator==(const Look&) const = default;
    };
    struct Kept {
        Look look;
        QPixmap pixmap;
    };

    std::array<Kept, slotCount> kept;
};

} // namespace tarnel
