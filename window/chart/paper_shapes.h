#pragma once

#include "paper/shapes.h"

#include <QLineF>
#include <QPointF>
#include <QRectF>
#include <QSizeF>

namespace tarnel {

// Shapes of the paper as the painter takes them.

inline QPointF toQt(Spot spot) {
    return {spot.x, spot.y};
}
inline QLineF toQt(const Stroke& line) {
    return {toQt(line.from), toQt(line.to)};
}
inline QRectF toQt(const Box& box) {
    return {box.left, box.top, box.width, box.height};
}
inline Box toPaper(const QRectF& area) {
    return {area.left(), area.top(), area.width(), area.height()};
}

} // namespace tarnel
