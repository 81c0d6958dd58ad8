#pragma once

#include "chart/chart_picture.h"
#include "window/chart/chart_frame.h"

#include <QPixmap>

class QPainter;

namespace tarnel {

/// The miniature airplane as a silhouette that reaches to the ends of its three lines. On a screen
/// it is outlined once and turned as pixels, which takes a fifth of the time.
class ChartAirplane {
  public:
    void paint(QPainter& painter, const ChartFrame& frame, const AirplaneLines& lines);

    /// What the airplane covers, or nothing while it is hidden.
    [[nodiscard]] static QRectF area(const ChartFrame& frame, const AirplaneLines& lines);

  private:
    void fitTo(const ChartFrame& frame, Colour colour);

    QPixmap pixels;           ///< upright about its middle
    double pixelsPerTwip = 0; ///< of these pixels
    double symbolScale = 0;
    Colour ink = 0;
};

} // namespace tarnel
