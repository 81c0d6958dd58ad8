#include "window/widgets/stepped_digits.h"

#include "look/panel_look.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

namespace tarnel {

void SteppedDigits::setOffered(bool offer) {
    if (offered == offer)
        return;
    offered = offer;
    setFocusPolicy(offered ? Qt::StrongFocus : Qt::NoFocus);
    setCursor(offered ? Qt::PointingHandCursor : Qt::ArrowCursor);
    update();
}

void SteppedDigits::stepBy(int steps) {
    if (offered && steps != 0 && step)
        step(steps);
}

void SteppedDigits::paintOver(QPainter& painter) {
    constexpr double rounding = 4;
    if (!offered || (!hasFocus() && !underMouse()))
        return;
    painter.setBrush(Qt::NoBrush);
    const double ring = hasFocus() ? 2 : 1;
    painter.setPen(QPen(hasFocus() ? look::panelFocus : look::panelAccent, ring));
    const double inset = ring / 2;
    painter.drawRoundedRect(rect().toRectF().adjusted(inset, inset, -inset, -inset), rounding,
                            rounding);
}

void SteppedDigits::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        pressed = true;
}

void SteppedDigits::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !pressed)
        return;
    const bool clicked = rect().contains(event->position().toPoint());
    pressed = false;
    if (clicked)
        stepBy(1);
}

void SteppedDigits::wheelEvent(QWheelEvent* event) {
    event->setAccepted(offered);
    stepBy(notches.take(*event));
}

void SteppedDigits::keyPressEvent(QKeyEvent* event) {
    if (const auto steps = stepsOfKey(*event))
        stepBy(*steps);
    else if (isClickKey(*event))
        stepBy(1);
    else
        DigitDisplay::keyPressEvent(event);
}

void SteppedDigits::enterEvent(QEnterEvent* /*event*/) {
    update();
}

void SteppedDigits::leaveEvent(QEvent* /*event*/) {
    update();
}

} // namespace tarnel
