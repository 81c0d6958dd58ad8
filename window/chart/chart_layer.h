#pragma once

#include "chart/map_view.h"
#include "paper/shapes.h"
#include "window/chart/chart_frame.h"

#include <cstdint>
#include <span>

class QPainter;

namespace tarnel {

/// How the paper lies when a layer is painted.
struct LayerPlace {
    const ChartFrame& frame;
    const MapView& view;
    double rotation = 0; ///< degrees
    double pixelsPerMile = 1;
};

/// `ChartLayer`: something that is laid on the chart in the place of the flight's trace.
class ChartLayer {
  public:
    virtual ~ChartLayer() = default;
    [[nodiscard]] virtual bool isShown() const = 0;
    /// Counts the changes of what it shows, and of whether.
    [[nodiscard]] virtual std::uint64_t revision() const = 0;
    /// The strip along the lower edge that it takes for what explains it.
    [[nodiscard]] virtual Box foot(const LayerPlace& place) = 0;
    /// Paints under the stations.
    virtual void paintLines(QPainter& painter, const LayerPlace& place) = 0;
    /// Paints over them, and keeps clear of `occupied`.
    virtual void paintLettering(QPainter& painter, const LayerPlace& place,
                                std::span<const Box> occupied) = 0;
    /// Paints the strip; scale bar and north arrow come over it.
    virtual void paintFoot(QPainter& painter, const LayerPlace& place) = 0;
};

} // namespace tarnel
