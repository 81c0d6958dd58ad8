#include "window/widgets/rounded_fill.h"

#include <QPainter>

#include <cmath>

namespace tarnel {

void fillRounded(QPainter& painter, const QRectF& area, double radius, const QColor& colour) {
    const QRect whole = area.toAlignedRect();
    const int strip = static_cast<int>(std::ceil(radius));
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.fillRect(whole.adjusted(0, strip, 0, -strip), colour);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    for (const int top : {whole.top(), whole.bottom() + 1 - strip}) {
        painter.save();
        painter.setClipRect(QRect(whole.left(), top, whole.width(), strip), Qt::IntersectClip);
        painter.drawRoundedRect(whole, radius, radius);
        painter.restore();
    }
    painter.restore();
}

} // namespace tarnel
