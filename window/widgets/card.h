#pragma once

#include "look/look.h"

#include <QPainter>

namespace tarnel {

/// Pixels between the side of a card and what it holds.
inline constexpr int cardInset = 14;

/// Paints the card that a part of the left column stands on.
inline void paintCard(QPainter& painter, const QRect& area) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(look::colours().line);
    painter.setBrush(look::colours().card);
    painter.drawRoundedRect(QRectF(area).adjusted(0.5, 0.5, -0.5, -0.5), look::controlRadius,
                            look::controlRadius);
}

} // namespace tarnel
