#include "window/widgets/panel_input.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QWheelEvent>

namespace tarnel {

int WheelNotches::take(const QWheelEvent& event) {
    const QPoint turned = event.angleDelta();
    const int delta = turned.y() != 0 ? turned.y() : turned.x();
    if ((delta < 0) != (remainder < 0))
        remainder = 0;
    remainder += delta;
    const int notches = remainder / QWheelEvent::DefaultDeltasPerStep;
    remainder %= QWheelEvent::DefaultDeltasPerStep;
    return notches;
}

std::optional<int> stepsOfKey(const QKeyEvent& event) {
    constexpr int pageSteps = 10;
    switch (event.key()) {
    case Qt::Key_Up:
        return 1;
    case Qt::Key_Down:
        return -1;
    case Qt::Key_PageUp:
        return pageSteps;
    case Qt::Key_PageDown:
        return -pageSteps;
    default:
        return std::nullopt;
    }
}

bool isClickKey(const QKeyEvent& event) {
    return event.key() == Qt::Key_Space || event.key() == Qt::Key_Return ||
           event.key() == Qt::Key_Enter;
}

bool cameByKeyboard(const QFocusEvent& event) {
    return event.reason() == Qt::TabFocusReason || event.reason() == Qt::BacktabFocusReason ||
           event.reason() == Qt::ShortcutFocusReason;
}

MouseButton turningButton(Qt::MouseButtons held) {
    return held.testFlag(Qt::LeftButton) ? MouseButton::left : MouseButton::other;
}

} // namespace tarnel
