#include "window/frame/help_key.h"

#include "window/help/help_window.h"
#include "window/widgets/help_page.h"

#include <QApplication>
#include <QKeyEvent>

#include <utility>

namespace tarnel {

HelpKey::HelpKey(QWidget& mainWindow, std::function<void(const QString& page)> open)
    : QObject(&mainWindow), main(mainWindow), onHelp(std::move(open)) {
    qApp->installEventFilter(this);
}

/// A key comes to the window first, which is no widget here, and then to what has the keyboard.
bool HelpKey::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress || !watched->isWidgetType())
        return false;
    const auto* key = static_cast<QKeyEvent*>(event);
    const auto* widget = static_cast<QWidget*>(watched);
    if (key->key() != Qt::Key_F1 || key->modifiers() != Qt::NoModifier ||
        widget->window() == &main || qobject_cast<HelpWindow*>(widget->window()))
        return false;
    onHelp(helpPageOf(widget));
    return true;
}

} // namespace tarnel
