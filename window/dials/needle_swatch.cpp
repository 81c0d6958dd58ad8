#include "window/dials/needle_swatch.h"

#include "look/panel_look.h"

#include <QPainter>
#include <QPolygonF>

namespace tarnel {

namespace {

constexpr double halfWidth = 8;
constexpr double headLength = 5;
constexpr double headHalf = 3.5;

void fill(QPainter& painter, double left, double top, double width, double height) {
    painter.drawRect(QRectF(left, top, width, height));
}

void paintHead(QPainter& painter, double tip) {
    painter.drawPolygon(
        QPolygonF{{tip, 0}, {tip - headLength, -headHalf}, {tip - headLength, headHalf}});
}

/// One shaft with a full head.
void paintSingle(QPainter& painter, double weight) {
    fill(painter, -halfWidth, -weight / 2, 2 * halfWidth - headLength, weight);
    paintHead(painter, halfWidth);
}

/// Two rails with a full head.
void paintDouble(QPainter& painter) {
    constexpr double rail = 1.25;
    constexpr double apart = 2.25;
    for (const double top : {-apart, apart - rail})
        fill(painter, -halfWidth, top, 2 * halfWidth - headLength, rail);
    paintHead(painter, halfWidth);
}

/// Tail, deviation bar and head of the course arrow, with gaps between them.
void paintArrow(QPainter& painter) {
    constexpr double weight = 2.25;
    fill(painter, -halfWidth, -weight / 2, 2.5, weight);
    fill(painter, -halfWidth + 4, -weight / 2, 5, weight);
    fill(painter, -halfWidth + 10.5, -weight / 2, 2, weight);
    paintHead(painter, halfWidth + 1);
}

void paintBar(QPainter& painter) {
    constexpr double weight = 3;
    constexpr double height = 13;
    fill(painter, -weight / 2, -height / 2, weight, height);
}

} // namespace

QColor needleColour(NeedleRole needle) {
    switch (needle) {
    case NeedleRole::first:
        return look::needleOne;
    case NeedleRole::second:
        return look::needleTwo;
    case NeedleRole::bar:
        return look::deviationBar;
    case NeedleRole::arrow:
        return look::course;
    case NeedleRole::overlay:
        return look::overlayNeedle;
    case NeedleRole::none:
        break;
    }
    return look::ticks;
}

int swatchWidth(NeedleRole needle, double scale) {
    constexpr int upright = 5;
    return needle == NeedleRole::bar ? upright : static_cast<int>(2 * halfWidth * scale);
}

void paintSwatch(QPainter& painter, NeedleRole needle, QPointF middle, double scale) {
    painter.save();
    painter.translate(middle);
    if (needle != NeedleRole::bar)
        painter.scale(scale, scale);
    painter.setPen(Qt::NoPen);
    painter.setBrush(needleColour(needle));
    if (needle == NeedleRole::bar)
        paintBar(painter);
    else if (needle == NeedleRole::second)
        paintDouble(painter);
    else if (needle == NeedleRole::arrow)
        paintArrow(painter);
    else
        paintSingle(painter, needle == NeedleRole::overlay ? 1.25 : 2);
    painter.restore();
}

} // namespace tarnel
