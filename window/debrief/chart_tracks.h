#pragma once

#include "shell/debrief_desk.h"

#include <QPointF>
#include <QPolygonF>

#include <functional>
#include <optional>
#include <span>
#include <vector>

namespace tarnel {

/// The lines of a debrief on the chart, in pixels.
struct ChartTracks {
    struct TaskCurve {
        TaskLineKind kind{};
        QPolygonF points;
    };
    std::vector<TaskCurve> task;
    /// What is allowed to either side of the task's curves: NM, or degrees within its corridors.
    struct Allowed {
        double value = 0;
        FindingUnit unit{};
    };
    std::optional<Allowed> allowed;
    std::vector<QPolygonF> corridors;
    QPolygonF own;
    std::vector<QPolygonF> outside; ///< the parts of it that keep some limit not
    QPolygonF chosen;               ///< the part that the finding speaks of; empty without one
    QPointF place;                  ///< that the finding's words stand beside
    std::vector<QPolygonF> earlier;
};

/// Where a position lies on the paper.
using OnPaper = std::function<QPointF(const GeoPosition&)>;

[[nodiscard]] ChartTracks layOutTracks(const Attempt& attempt, std::span<const Attempt> earlier,
                                       std::optional<SampleSpan> chosen, const OnPaper& place);

/// Boxes of these sizes in lines from left to right between `left` and `right`, downwards from
/// `top`.
[[nodiscard]] std::vector<QRectF> flowOf(std::span<const double> widths, double left, double right,
                                         double top, double lineHeight);

} // namespace tarnel
