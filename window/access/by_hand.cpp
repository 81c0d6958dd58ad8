#include "window/access/by_hand.h"

#include <QApplication>
#include <QWidget>

namespace tarnel {

namespace {

bool handReaches(const QWidget& widget) {
    const QWidget* box = QApplication::activeModalWidget();
    return widget.isEnabled() && widget.isVisible() &&
           (!box || box == &widget || box->isAncestorOf(&widget));
}

} // namespace

void byHand(QWidget& widget, std::function<void()> action) {
    QMetaObject::invokeMethod(
        &widget,
        [&widget, action = std::move(action)] {
            if (handReaches(widget))
                action();
        },
        Qt::QueuedConnection);
}

} // namespace tarnel
