#pragma once

#include "look/look.h"

#include <QPainter>

namespace tarnel {

/// Paints the card that a part of the left column stands on.
inline void paintCard(QPainter& painter, const QRect& area) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(look::colours().line);
    painter.setBrush(look::colours().card);
    painter.drawRoundedRect(QRectF(area).adjusted(0.5, 0.5, -0.5, -0.5), look::controlRadius,
                            look::controlRadius);
}

} // namespace tarnel
