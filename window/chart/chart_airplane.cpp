#include "window/chart/chart_airplane.h"

#include "core/plane_geometry.h"
#include "look/look.h"

#include <QPainter>
#include <QPainterPath>
#include <QTransform>

#include <algorithm>

namespace tarnel {

namespace {

constexpr double outlineWidth = 1.6;
constexpr double haloWidth = 4.5;
constexpr double haloOpacity = 0.9;

/// The right half of the silhouette from nose to tail, in twips about the airplane's place.
QPainterPath rightHalf() {
    const AirplaneOutline outline;
    const double nose = outline.nose.y;
    const double tail = outline.tail.y;
    const double wing = outline.rightWing.x;
    const double tailplane = outline.rightTailplane.x;
    const double tailplaneAt = outline.rightTailplane.y;
    QPainterPath path;
    path.moveTo(0, nose);
    path.cubicTo(16, nose + 3, 27, nose + 26, 29, -44);
    path.lineTo(wing - 16, -27);
    path.cubicTo(wing, -25, wing, 25, wing - 16, 26);
    path.lineTo(29, 40);
    path.lineTo(15, tailplaneAt - 28);
    path.lineTo(tailplane - 8, tailplaneAt - 21);
    path.cubicTo(tailplane, tailplaneAt - 20, tailplane, tailplaneAt + 14, tailplane - 8,
                 tailplaneAt + 13);
    path.lineTo(9, tailplaneAt + 6);
    path.lineTo(0, tail);
    return path;
}

const QPainterPath& silhouette() {
    static const QPainterPath whole = [] {
        QPainterPath path = rightHalf();
        path.connectPath(QTransform::fromScale(-1, 1).map(rightHalf()).toReversed());
        path.closeSubpath();
        return path;
    }();
    return whole;
}

/// Lays the silhouette along fuselage and wing.
QTransform alongLines(const ChartFrame& frame, const AirplaneLines& lines) {
    const AirplaneOutline outline;
    const QLineF wing = frame.along(lines.wing);
    const QLineF fuselage = frame.along(lines.fuselage);
    const double span = outline.rightWing.x - outline.leftWing.x;
    const double length = outline.tail.y - outline.nose.y;
    const QPointF right = (wing.p2() - wing.p1()) / span;
    const QPointF back = (fuselage.p2() - fuselage.p1()) / length;
    const QPointF centre = wing.center();
    return {right.x(), right.y(), back.x(), back.y(), centre.x(), centre.y()};
}

/// In pixels on the chart.
void paintShape(QPainter& painter, const QPainterPath& shape, double symbolScale, Colour colour) {
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(look::faded(look::paper, haloOpacity), haloWidth * symbolScale,
                        Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(shape);
    painter.setBrush(look::paper);
    painter.setPen(QPen(look::fromSurface(colour), outlineWidth * symbolScale, Qt::SolidLine,
                        Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(shape);
}

} // namespace

/// Twice as fine as the screen, since it is turned.
void ChartAirplane::fitTo(const ChartFrame& frame, Colour colour) {
    const double finer = 2 * frame.pixelRatio;
    const double scale = frame.pixelsPerTwip * finer;
    if (pixelsPerTwip == scale && symbolScale == frame.symbolScale && ink == colour)
        return;
    pixelsPerTwip = scale;
    symbolScale = frame.symbolScale;
    ink = colour;
    const QPainterPath shape = QTransform::fromScale(scale, scale).map(silhouette());
    const QRectF area = shape.boundingRect();
    const double edge = haloWidth * symbolScale * finer;
    const QSize half(qCeil(std::max(-area.left(), area.right()) + edge),
                     qCeil(std::max(-area.top(), area.bottom()) + edge));
    pixels = QPixmap(half * 2);
    pixels.fill(Qt::transparent);
    QPainter painter(&pixels);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(half.width(), half.height());
    paintShape(painter, shape, symbolScale * finer, colour);
}

QRectF ChartAirplane::area(const ChartFrame& frame, const AirplaneLines& lines) {
    if (!lines.fuselage.visible)
        return {};
    return alongLines(frame, lines).mapRect(silhouette().boundingRect());
}

void ChartAirplane::paint(QPainter& painter, const ChartFrame& frame, const AirplaneLines& lines) {
    if (!area(frame, lines).intersects(frame.paper))
        return;
    const QTransform place = alongLines(frame, lines);
    const Colour colour = lines.fuselage.colour;
    if (frame.medium == ChartMedium::sheet)
        return paintShape(painter, place.map(silhouette()), frame.symbolScale, colour);
    fitTo(frame, colour);
    painter.save();
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setTransform(place, true);
    painter.scale(1 / pixelsPerTwip, 1 / pixelsPerTwip);
    painter.drawPixmap(QPointF(-pixels.width() / 2.0, -pixels.height() / 2.0), pixels);
    painter.restore();
}

} // namespace tarnel
