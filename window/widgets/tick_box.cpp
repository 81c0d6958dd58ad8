#include "window/widgets/tick_box.h"

#include "look/look.h"

#include <QPainter>
#include <QPainterPath>

namespace tarnel {

namespace {

constexpr int spaceBeforeText = 6;

void paintMark(QPainter& painter, const QRectF& field, Qt::CheckState state) {
    if (state == Qt::Unchecked)
        return;
    painter.setPen(QPen(Qt::white, field.width() / 7, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const auto at = [&field](double x, double y) {
        return QPointF(field.x() + x * field.width(), field.y() + y * field.height());
    };
    if (state == Qt::PartiallyChecked)
        painter.drawLine(at(0.25, 0.5), at(0.75, 0.5));
    else
        painter.drawPolyline(QPolygonF{at(0.24, 0.53), at(0.43, 0.72), at(0.77, 0.31)});
}

} // namespace

int TickBox::fieldSize() const {
    return fontMetrics().height() - 1;
}

QSize TickBox::sizeHint() const {
    return {fieldSize() + spaceBeforeText + fontMetrics().horizontalAdvance(text()) + 2,
            fontMetrics().height() + 5};
}

void TickBox::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!isEnabled())
        painter.setOpacity(look::disabledOpacity);
    const int side = fieldSize();
    const QRectF field(1, (height() - side) / 2.0, side, side);
    const bool filled = checkState() != Qt::Unchecked;
    const bool active = (underMouse() && isEnabled()) || hasFocus();
    painter.setPen(QPen(filled || active ? look::accent : look::unit, hasFocus() ? 2 : 1.2));
    painter.setBrush(filled ? look::accent : look::paper);
    painter.drawRoundedRect(field.adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
    paintMark(painter, field, checkState());
    painter.setPen(look::ink);
    painter.drawText(rect().adjusted(side + spaceBeforeText, 0, 0, 0),
                     Qt::AlignVCenter | Qt::AlignLeft, text());
}

} // namespace tarnel
