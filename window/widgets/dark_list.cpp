#include "window/widgets/dark_list.h"

#include "look/panel_look.h"

#include <QPainter>

namespace tarnel {

namespace {

constexpr double arrowWidth = 8;
constexpr double inset = 8;

void paintArrow(QPainter& painter, const QRectF& area) {
    const QPointF middle(area.right() - inset - arrowWidth / 2, area.center().y());
    painter.setPen(QPen(look::unit, 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(QPolygonF{middle + QPointF(-arrowWidth / 2, -2), middle + QPointF(0, 2),
                                   middle + QPointF(arrowWidth / 2, -2)});
}

} // namespace

QSize DarkList::sizeHint() const {
    int widest = 0;
    for (int i = 0; i < count(); ++i)
        widest = std::max(widest, fontMetrics().horizontalAdvance(itemText(i)));
    return {widest + static_cast<int>(3 * inset + arrowWidth) - 4, fontMetrics().height() + 10};
}

void DarkList::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!isEnabled())
        painter.setOpacity(look::dimmedOpacity);
    const QRectF area = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    const QColor edge = hasFocus()                    ? look::panelAccent
                        : underMouse() && isEnabled() ? look::unit
                                                      : look::bezelTop.lighter(125);
    painter.setPen(QPen(edge, hasFocus() ? 2 : 1));
    painter.setBrush(look::downward(0, height(), look::moduleTop, look::moduleBottom));
    painter.drawRoundedRect(area, look::controlRadius, look::controlRadius);
    painter.setPen(look::caption);
    painter.drawText(area.adjusted(inset, 0, 0, 0), Qt::AlignVCenter | Qt::AlignLeft,
                     currentText());
    paintArrow(painter, area);
}

} // namespace tarnel
