#include "window/widgets/icons.h"

#include "look/panel_look.h"

#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>

namespace tarnel {

namespace {

/// Signs are drawn on a grid of this many units.
constexpr double grid = 16;

QPainterPath triangle(QPointF a, QPointF b, QPointF c) {
    QPainterPath path(a);
    path.lineTo(b);
    path.lineTo(c);
    path.closeSubpath();
    return path;
}

void paintLoop(QPainter& painter) {
    painter.drawArc(QRectF(3.5, 3.5, 9, 9), 20 * 16, 300 * 16);
    painter.fillPath(triangle({13.8, 2.6}, {13.8, 7.2}, {9.4, 6.4}), painter.pen().color());
}

void paintInterpolate(QPainter& painter) {
    QPainterPath curve(QPointF(2, 11));
    curve.cubicTo(QPointF(6, 3), QPointF(9, 14), QPointF(14, 5));
    painter.drawPath(curve);
    painter.setBrush(painter.pen().color());
    for (const QPointF dot : {QPointF(2, 11), QPointF(7.6, 8.4), QPointF(14, 5)})
        painter.drawEllipse(dot, 1.3, 1.3);
}

void paintRadial(QPainter& painter) {
    painter.drawLine(QPointF(5, 11), QPointF(14, 2));
    QPen dashed = painter.pen();
    dashed.setDashPattern({1.2, 1.6});
    const QPen solid = painter.pen();
    painter.setPen(dashed);
    painter.drawLine(QPointF(5, 11), QPointF(1.5, 14.5));
    painter.setPen(solid);
    painter.setBrush(solid.color());
    painter.drawEllipse(QPointF(5, 11), 2.1, 2.1);
}

void paintPointer(QPainter& painter) {
    painter.drawEllipse(QPointF(8, 8), 6.4, 6.4);
    painter.drawLine(QPointF(5.4, 12), QPointF(9.4, 6));
    painter.fillPath(triangle({11, 3.4}, {11, 7.2}, {7.6, 5}), painter.pen().color());
}

void paintEnlarge(QPainter& painter) {
    painter.drawPolyline(QPolygonF{QPointF(9.5, 2.5), QPointF(13.5, 2.5), QPointF(13.5, 6.5)});
    painter.drawLine(QPointF(13.2, 2.8), QPointF(9, 7));
    painter.drawPolyline(QPolygonF{QPointF(6.5, 13.5), QPointF(2.5, 13.5), QPointF(2.5, 9.5)});
    painter.drawLine(QPointF(2.8, 13.2), QPointF(7, 9));
}

void paintGyro(QPainter& painter) {
    painter.drawEllipse(QPointF(8, 8), 6.4, 6.4);
    painter.drawLine(QPointF(8, 4.5), QPointF(8, 11.5));
    painter.drawLine(QPointF(5, 7.4), QPointF(11, 7.4));
    painter.drawLine(QPointF(6.6, 11), QPointF(9.4, 11));
}

void paintLens(QPainter& painter, bool plus) {
    painter.drawLine(QPointF(3.5, 8), QPointF(12.5, 8));
    if (plus)
        painter.drawLine(QPointF(8, 3.5), QPointF(8, 12.5));
}

/// A triangle that runs against a bar.
void paintJump(QPainter& painter, bool forwards, const QColor& colour) {
    const auto x = [forwards](double at) { return forwards ? at : grid - at; };
    painter.fillPath(triangle({x(3.5), 3.5}, {x(10.5), 8}, {x(3.5), 12.5}), colour);
    painter.drawLine(QPointF(x(12), 4), QPointF(x(12), 12));
}

void paintMark(QPainter& painter, bool isRight) {
    painter.setBrush(Qt::NoBrush);
    if (isRight) {
        painter.drawPolyline(QPolygonF{QPointF(4.8, 8.3), QPointF(7.1, 10.5), QPointF(11.2, 5.8)});
        return;
    }
    painter.drawLine(QPointF(5.4, 5.4), QPointF(10.6, 10.6));
    painter.drawLine(QPointF(10.6, 5.4), QPointF(5.4, 10.6));
}

/// A tick or a cross in a filled round.
void paintVerdict(QPainter& painter, bool isRight, const QColor& colour) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawEllipse(QPointF(8, 8), 7, 7);
    painter.setPen(QPen(look::markOn(colour), 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    paintMark(painter, isRight);
}

void paintOnGrid(QPainter& painter, Sign sign, const QColor& colour) {
    switch (sign) {
    case Sign::play:
        painter.fillPath(triangle({4.5, 3}, {13, 8}, {4.5, 13}), colour);
        return;
    case Sign::stop:
        painter.fillRect(QRectF(4, 4, 8, 8), colour);
        return;
    case Sign::loop:
        return paintLoop(painter);
    case Sign::interpolate:
        return paintInterpolate(painter);
    case Sign::radial:
        return paintRadial(painter);
    case Sign::pointer:
        return paintPointer(painter);
    case Sign::enlarge:
        return paintEnlarge(painter);
    case Sign::gyro:
        return paintGyro(painter);
    case Sign::zoomIn:
    case Sign::zoomOut:
        return paintLens(painter, sign == Sign::zoomIn);
    case Sign::previous:
    case Sign::next:
        return paintJump(painter, sign == Sign::next, colour);
    case Sign::right:
    case Sign::wrong:
        return paintVerdict(painter, sign == Sign::right, colour);
    case Sign::tick:
    case Sign::cross:
        painter.translate(grid / 2, grid / 2);
        painter.scale(1.6, 1.6);
        painter.translate(-grid / 2, -grid / 2);
        return paintMark(painter, sign == Sign::tick);
    }
}

/// Paints a sign at the size and in the state that is asked for.
class SignEngine : public QIconEngine {
  public:
    SignEngine(Sign which, SignInk usual, SignInk whenDisabled)
        : sign(which), ink(usual), disabledInk(whenDisabled) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        paintSign(*painter, sign, rect, mode == QIcon::Disabled ? disabledInk() : ink());
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap image(size);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return image;
    }
    [[nodiscard]] QIconEngine* clone() const override { return new SignEngine(*this); }

  private:
    Sign sign;
    SignInk ink;
    SignInk disabledInk;
};

} // namespace

void paintSign(QPainter& painter, Sign sign, const QRectF& square, const QColor& colour) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(square.topLeft());
    painter.scale(square.width() / grid, square.height() / grid);
    painter.setPen(QPen(colour, 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    paintOnGrid(painter, sign, colour);
    painter.restore();
}

QIcon signIcon(Sign sign, SignInk ink) {
    return QIcon(new SignEngine(sign, ink, [] { return look::colours().disabledInk; }));
}

QIcon panelSignIcon(Sign sign) {
    return QIcon(new SignEngine(
        sign, [] { return look::caption; }, [] { return look::dimCaption; }));
}

QColor plainInk() {
    return look::colours().ink;
}

QColor inkOnAccent() {
    return look::colours().onAccent;
}

} // namespace tarnel
