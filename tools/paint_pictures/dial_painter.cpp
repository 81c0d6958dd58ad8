#include "tools/paint_pictures/dial_painter.h"

#include "tools/paint_pictures/lettering.h"
#include "tools/paint_pictures/palette.h"

#include <QPainterPath>
#include <QPen>
#include <QPolygonF>
#include <QRadialGradient>

#include <algorithm>

namespace tarnel {

using look::faded;
using palette::downward;

namespace {

QPainterPath circlePath(QPointF centre, double radius) {
    QPainterPath path;
    path.addEllipse(centre, radius, radius);
    return path;
}

// The shadow that the rim casts on the dial: all around, and farther down from the top.
void paintRimShadow(QPainter& painter, double radius) {
    constexpr double fall = 0.045;
    QRadialGradient around(QPointF(), radius);
    around.setColorAt(0.0, faded(palette::black, 0));
    around.setColorAt(0.80, faded(palette::black, 0));
    around.setColorAt(0.93, faded(palette::black, 0.35));
    around.setColorAt(1.0, faded(palette::black, 0.75));
    painter.fillPath(circlePath({}, radius), around);

    QRadialGradient fromAbove(QPointF(0, fall), radius + fall);
    fromAbove.setColorAt(0.0, faded(palette::black, 0));
    fromAbove.setColorAt(0.88, faded(palette::black, 0));
    fromAbove.setColorAt(1.0, faded(palette::black, 0.6));
    painter.fillPath(circlePath({}, radius), fromAbove);
}

void paintArrow(QPainter& painter, QPointF centre, bool down) {
    constexpr double halfWidth = 0.029;
    constexpr double halfHeight = 0.026;
    const double tip = down ? halfHeight : -halfHeight;
    painter.setBrush(look::ticks);
    painter.drawPolygon(QPolygonF{centre + QPointF(0, tip), centre + QPointF(halfWidth, -tip),
                                  centre + QPointF(-halfWidth, -tip)});
}

// Two shutter halves that meet: nothing to read.
void paintShutter(QPainter& painter, const QRectF& window) {
    constexpr double seam = 0.006;
    painter.fillRect(window, downward(window.top(), window.bottom(),
                                      {{0.0, 0xFF0C0D0E}, {0.5, 0xFF141618}, {1.0, 0xFF101213}}));
    painter.fillRect(QRectF(window.left(), window.center().y() - seam / 2, window.width(), seam),
                     palette::black);
    painter.fillRect(
        QRectF(window.left(), window.center().y() + seam / 2, window.width(), seam / 2),
        faded(palette::white, 0.07));
}

void paintFlagWord(QPainter& painter, const QRectF& window, WindowFlag flag) {
    constexpr double size = 0.092;
    constexpr double wordShift = -0.040;
    constexpr double arrowShift = 0.076;
    const QString word = flag == WindowFlag::To ? QStringLiteral("TO") : QStringLiteral("FR");
    const QPointF base = window.center() + QPointF(wordShift, size * capitalHeight / 2);
    painter.fillRect(
        window, downward(window.top(), window.bottom(), {{0.0, 0xFF1D2124}, {1.0, 0xFF2A2F33}}));
    painter.fillPath(letters(word, size, base, Anchor::Centre), look::ticks);
    paintArrow(painter, window.center() + QPointF(arrowShift, 0), flag == WindowFlag::From);
}

} // namespace

void paintCard(QPainter& painter, const DialShape& shape) {
    constexpr double step = 0.008;
    const double glass = shape.glassRadius;
    const double edge = shape.cardRadius + step;
    painter.fillPath(circlePath({}, glass),
                     downward(-glass, glass, {{0.0, 0xFF141619}, {1.0, 0xFF0E1012}}));
    painter.fillPath(circlePath({}, edge),
                     downward(-edge, edge, {{0.0, look::dialTop}, {1.0, look::dialBottom}}));
    paintRimShadow(painter, glass);

    painter.save();
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(faded(palette::black, 0.75), step / 2));
    painter.drawEllipse(QPointF(), edge + step / 4, edge + step / 4);
    painter.setPen(QPen(downward(-edge, edge,
                                 {{0.0, faded(palette::white, 0.10)},
                                  {0.5, faded(palette::white, 0.03)},
                                  {1.0, faded(palette::white, 0.07)}}),
                        step / 3));
    painter.drawEllipse(QPointF(), edge - step / 4, edge - step / 4);
    painter.restore();
}

void paintFixedMarks(QPainter& painter, const DialShape& shape, TopMark topMark) {
    constexpr int marks = 8;
    constexpr double fromCard = 0.014;
    constexpr double fromGlass = 0.010;
    constexpr double longest = 0.050;
    constexpr double triangleHalfWidth = 0.056;
    constexpr double slimWidth = 0.014;
    const double outer = shape.glassRadius - fromGlass;
    const double inner = std::max(shape.cardRadius + fromCard, outer - longest);
    painter.save();
    for (int mark = 1; mark < marks; ++mark) {
        painter.rotate(360.0 / marks);
        const double width = mark % 2 == 0 ? 0.030 : 0.018;
        painter.fillRect(
            QRectF(-width / 2, -outer, width, outer - inner),
            downward(-outer, -inner, {{0.0, palette::markDark}, {1.0, palette::markLight}}));
    }
    painter.restore();
    painter.setBrush(look::ticks);
    if (topMark == TopMark::SlimBar) {
        painter.drawRect(QRectF(-slimWidth / 2, -outer, slimWidth, outer - inner));
        return;
    }
    const double base = shape.glassRadius + fromGlass; // painted over the seal to be larger
    painter.drawPolygon(QPolygonF{QPointF(-triangleHalfWidth, -base),
                                  QPointF(triangleHalfWidth, -base),
                                  QPointF(0, -shape.cardRadius - fromCard / 2)});
}

void paintFlagWindow(QPainter& painter, WindowFlag flag) {
    constexpr double frame = 0.008;
    constexpr double rounding = 0.018;
    constexpr double shade = 0.028;
    const QRectF outer(0.30 - 0.13, 0.17 - 0.065, 0.26, 0.13);
    const QRectF window = outer.adjusted(frame, frame, -frame, -frame);
    painter.setBrush(downward(outer.top(), outer.bottom(),
                              {{0.0, 0xFF050606}, {0.5, 0xFF1B1F22}, {1.0, 0xFF4B535B}}));
    painter.drawRoundedRect(outer, rounding, rounding);

    QPainterPath opening;
    opening.addRoundedRect(window, rounding - frame, rounding - frame);
    painter.save();
    painter.setClipPath(opening);
    if (flag == WindowFlag::Closed)
        paintShutter(painter, window);
    else
        paintFlagWord(painter, window, flag);
    painter.fillRect(
        window, downward(window.top(), window.top() + shade,
                         {{0.0, faded(palette::black, 0.6)}, {1.0, faded(palette::black, 0)}}));
    painter.restore();
}

void paintGlass(QPainter& painter, const DialShape& shape) {
    constexpr double strongest = 0.08;
    constexpr double weakest = 0.02;
    const double glass = shape.glassRadius;
    const double edgeTop = -0.32 * glass;
    QPainterPath aboveEdge; // the ellipse is a hole in the rectangle
    aboveEdge.addRect(QRectF(-glass, -glass, 2 * glass, 2 * glass));
    aboveEdge.addEllipse(QRectF(-1.5 * glass, edgeTop, 3.1 * glass, 2.6 * glass));
    painter.save();
    painter.setClipPath(circlePath({}, glass));
    painter.fillPath(aboveEdge, downward(-glass, edgeTop + 0.3 * glass,
                                         {{0.0, faded(palette::white, strongest)},
                                          {0.7, faded(palette::white, weakest)},
                                          {1.0, faded(palette::white, weakest)}}));
    painter.restore();
}

} // namespace tarnel
