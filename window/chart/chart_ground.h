#pragma once

#include "chart/chart_picture.h"
#include "paper/grid.h"
#include "window/chart/chart_dots.h"
#include "window/chart/chart_frame.h"

#include <QPixmap>

#include <optional>
#include <span>
#include <vector>

class QPainter;

namespace tarnel {

/// `ChartGround`: paints what lies below the stations and moves with none of them: paper, grid,
/// feather, radials and trace. A ground that comes again as it was is kept as a pixmap, to which
/// dots that a flight leaves are added.
class ChartGround {
  public:
    /// Without the trace where something else is shown of the flight. `frame` differs from the one
    /// before only if `forget` was called.
    void paint(QPainter& painter, const ChartFrame& frame, const GridPlace& grid,
               const ChartPicture& picture, bool traced);
    void forget() { shown.reset(); }

  private:
    /// What was painted last; dots aside.
    struct Shown {
        GridPlace grid;
        LocalizerLines localizer;
        RadialLines radialsI2;
        RadialLines radialsI3;
        bool operator==(const Shown&) const = default;
    };

    void paintAll(QPainter& painter, const ChartFrame& frame, const Shown& now,
                  const std::vector<Dot>& dots);
    void paintDots(QPainter& painter, const ChartFrame& frame, std::span<const Dot> dots);
    [[nodiscard]] bool keeps(const std::vector<Dot>& dots) const;

    std::optional<Shown> shown;
    QPixmap kept; ///< null until a ground came twice
    std::vector<Dot> keptDots;
    ChartDots trace;
};

} // namespace tarnel
