#pragma once

#include "paper/shapes.h"
#include "tools/approach/approach_sheet.h"

#include <QString>

#include <span>
#include <vector>

class QPainter;

namespace tarnel {

/// A whole ten minutes of latitude or longitude at an edge of the plan.
struct GraticuleMark {
    Stroke tick; ///< from the edge inwards
    Box text;    ///< empty where there is a tick alone
    QString words;
};

/// The marks along all four edges of the plan. Those at the left and the lower one are named where
/// that covers none of the `occupied` areas.
[[nodiscard]] std::vector<GraticuleMark> graticule(const ChartPlane& plane, const Box& window,
                                                   std::span<const Box> occupied);

void paintGraticule(QPainter& painter, std::span<const GraticuleMark> marks);

} // namespace tarnel
