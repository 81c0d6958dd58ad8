#pragma once

class QBrush;
class QPainter;
class QWidget;

namespace tarnel {

/// Fills what a rounded square in the upper left of a widget leaves free: with that, the widget
/// covers all that lies below it (`Qt::WA_OpaquePaintEvent`), and when it paints, nothing there has
/// to. `side` and `radius` in logical pixels.
void fillAround(QPainter& painter, const QWidget& widget, double side, double radius,
                const QBrush& ground);

} // namespace tarnel
