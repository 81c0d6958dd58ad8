#pragma once

#include <QColor>
#include <QIcon>

namespace tarnel {

/// The signs on buttons.
enum class Sign {
    play,
    stop,
    loop,
    interpolate,
    radial,
    pointer,
    enlarge,
    gyro,
    zoomIn,
    zoomOut,
    previous,
    next,
    right, ///< in a round
    wrong,
    tick,
    cross
};

/// Paints `sign` into a square.
void paintSign(QPainter& painter, Sign sign, const QRectF& square, const QColor& colour);

/// An icon that stays sharp at every size.
[[nodiscard]] QIcon signIcon(Sign sign, const QColor& colour);

} // namespace tarnel
