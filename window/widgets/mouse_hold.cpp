#include "window/widgets/mouse_hold.h"

#include <QEvent>
#include <QMouseEvent>
#include <QWidget>

namespace tarnel {

MouseHold::MouseHold(QWidget& holder, std::function<void()> lost)
    : QObject(&holder), widget(holder), onLost(std::move(lost)) {}

void MouseHold::begin() {
    end();
    window = widget.window();
    widget.installEventFilter(this);
    window->installEventFilter(this);
    tracked = widget.hasMouseTracking();
    widget.setMouseTracking(true); // else a move without a button does not come
}

void MouseHold::end() {
    if (!window)
        return;
    widget.removeEventFilter(this);
    window->removeEventFilter(this);
    widget.setMouseTracking(tracked);
    window = nullptr;
}

/// A move without a button means that the release went to somebody else.
bool MouseHold::loses(const QObject* watched, const QEvent& event) const {
    switch (event.type()) {
    case QEvent::WindowBlocked:
    case QEvent::WindowDeactivate:
        return watched == window;
    case QEvent::FocusOut:
    case QEvent::Hide:
    case QEvent::UngrabMouse:
        return watched == &widget;
    case QEvent::EnabledChange:
        return watched == &widget && !widget.isEnabled();
    case QEvent::MouseMove:
        return watched == &widget &&
               static_cast<const QMouseEvent&>(event).buttons() == Qt::NoButton;
    default:
        return false;
    }
}

bool MouseHold::eventFilter(QObject* watched, QEvent* event) {
    if (window && loses(watched, *event)) {
        end();
        onLost();
    }
    return false;
}

} // namespace tarnel
