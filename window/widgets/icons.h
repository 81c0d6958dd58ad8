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

/// Says which colour a sign has now: the window's colours follow the desktop.
using SignInk = QColor (*)();
[[nodiscard]] QColor plainInk();
[[nodiscard]] QColor inkOnAccent(); ///< of what is primary

/// An icon that stays sharp at every size, and follows the colours that are in use.
[[nodiscard]] QIcon signIcon(Sign sign, SignInk ink = plainInk);

/// The same for a key of the dark panel.
[[nodiscard]] QIcon panelSignIcon(Sign sign);

} // namespace tarnel
