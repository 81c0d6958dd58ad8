#include "window/widgets/ground_around.h"

#include <QBrush>
#include <QPainter>
#include <QRegion>
#include <QWidget>

#include <cmath>

namespace tarnel {

void fillAround(QPainter& painter, const QWidget& widget, double side, double radius,
                const QBrush& ground) {
    const int inside = static_cast<int>(std::floor(side));
    const int round = static_cast<int>(std::ceil(radius));
    const QRegion free = QRegion(widget.rect()) - QRect(round, 0, inside - 2 * round, inside) -
                         QRect(0, round, inside, inside - 2 * round);
    for (const QRect& part : free)
        painter.fillRect(part, ground);
}

} // namespace tarnel
