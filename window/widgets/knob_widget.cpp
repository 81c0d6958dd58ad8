#include "window/widgets/knob_widget.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

namespace tarnel {

namespace {

constexpr double rimShare = 0.38; ///< of the widget's side; the rest is the scale and the shadow
constexpr int smallestSide = 40;  ///< its cap is 30 pixels wide

} // namespace

KnobWidget::KnobWidget(PictureStore& store, KnobCap cap, QWidget* parent)
    : QWidget(parent), pictures(store) {
    knob.cap = cap;
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::SizeHorCursor);
}

QSize KnobWidget::sizeHint() const {
    constexpr int side = 66;
    return {side, side};
}

QSize KnobWidget::minimumSizeHint() const {
    return {smallestSide, smallestSide};
}

double KnobWidget::rim() const {
    return std::min(width(), height()) * rimShare;
}

Point KnobWidget::twipsAt(QPointF at) const {
    return {at.x() * twipsPerPixel, at.y() * twipsPerPixel};
}

void KnobWidget::setValueText(const QString& text) {
    if (text == value)
        return;
    value = text;
    QAccessibleEvent changed(this, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&changed);
}

void KnobWidget::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    if (scaleShown)
        paintScale(painter);
    KnobLook shown = knob;
    shown.focused = hasFocus() && knob.focused;
    paintKnob(painter, pictures, rect().toRectF().center(), rim(), shown);
}

void KnobWidget::paintScale(QPainter& painter) const {
    constexpr int marks = 11;
    constexpr double firstDegrees = -135;
    constexpr double stepDegrees = 27;
    constexpr double from = 1.17;
    constexpr double to = 1.28;
    constexpr double strength = 0.5;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(look::faded(look::unit, strength * (knob.dimmed ? look::dimmedOpacity : 1)),
                        std::max(1.0, rim() * 0.045)));
    painter.translate(rect().toRectF().center());
    painter.rotate(firstDegrees);
    for (int mark = 0; mark < marks; ++mark) {
        painter.drawLine(QPointF(0, -rim() * from), QPointF(0, -rim() * to));
        painter.rotate(stepDegrees);
    }
    painter.restore();
}

void KnobWidget::mousePressEvent(QMouseEvent* event) {
    hold.begin();
    show(&KnobLook::pressed, true);
    show(&KnobLook::focused, false);
    if (press)
        press(twipsAt(event->position()));
}

void KnobWidget::mouseMoveEvent(QMouseEvent* event) {
    if (move)
        move(twipsAt(event->position()), turningButton(event->buttons()));
}

void KnobWidget::mouseReleaseEvent(QMouseEvent* event) {
    if (event->buttons() != Qt::NoButton)
        return;
    hold.end();
    show(&KnobLook::pressed, false);
    show(&KnobLook::hovered, rect().contains(event->position().toPoint()));
    endPress(event->button() == Qt::LeftButton);
}

void KnobWidget::letGo() {
    show(&KnobLook::pressed, false);
    show(&KnobLook::hovered, false);
    endPress(false);
}

void KnobWidget::endPress(bool mayClick) {
    if (lost && !mayClick)
        lost();
    else if (release)
        release();
}

void KnobWidget::mouseDoubleClickEvent(QMouseEvent* event) {
    if (doubleClick)
        doubleClick();
    else
        mousePressEvent(event);
}

void KnobWidget::wheelEvent(QWheelEvent* event) {
    const int steps = notches.take(*event);
    if (steps != 0 && step)
        step(steps);
    event->accept();
}

void KnobWidget::keyPressEvent(QKeyEvent* event) {
    const auto upright = stepsOfKey(*event);
    show(&KnobLook::focused, true);
    if (upright && step)
        step(*upright);
    else if (isClickKey(*event))
        click();
    else
        QWidget::keyPressEvent(event);
}

void KnobWidget::click() {
    if (doubleClick)
        doubleClick();
    else if (step)
        step(1);
}

void KnobWidget::enterEvent(QEnterEvent* /*event*/) {
    show(&KnobLook::hovered, true);
}

void KnobWidget::leaveEvent(QEvent* /*event*/) {
    show(&KnobLook::hovered, knob.pressed);
}

void KnobWidget::focusInEvent(QFocusEvent* event) {
    knob.focused = cameByKeyboard(*event);
    update();
}

void KnobWidget::focusOutEvent(QFocusEvent* /*event*/) {
    update();
}

} // namespace tarnel
