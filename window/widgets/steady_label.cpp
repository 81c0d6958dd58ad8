#include "window/widgets/steady_label.h"

#include <QEvent>

namespace tarnel {

namespace {

QString shapeOf(const QString& text) {
    QString shape = text;
    for (QChar& each : shape)
        if (each.isDigit())
            each = QLatin1Char('0');
    return shape;
}

} // namespace

void SteadyLabel::fit() {
    const QString now = shapeOf(text());
    if (now == shape)
        return;
    shape = now;
    ensurePolished();
    const int wider =
        fontMetrics().horizontalAdvance(shape) - fontMetrics().horizontalAdvance(text());
    setFixedSize(sizeHint() + QSize(wider, 0));
}

void SteadyLabel::changeEvent(QEvent* event) {
    QLabel::changeEvent(event);
    if (event->type() != QEvent::FontChange && event->type() != QEvent::StyleChange)
        return;
    shape.clear();
    fit();
}

} // namespace tarnel
