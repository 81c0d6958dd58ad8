#include "window/frame/window_keys.h"

#include "window/widgets/quiet_key.h"
#include "window/widgets/text_of.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMenuBar>

namespace tarnel {

void addWindowKeys(QMainWindow& window, const StringTable& texts,
                   const std::function<void()>& stepOut) {
    auto* bar = new QAction(textOf(texts, Text::keyMenuBar), &window);
    bar->setObjectName(QStringLiteral("keyMenuBar"));
    bar->setShortcut(Qt::Key_F10);
    QObject::connect(bar, &QAction::triggered, &window, [&window] {
        // Alt takes the keyboard to the bar, and lets it go back to where it was.
        for (const QEvent::Type type : {QEvent::ShortcutOverride, QEvent::KeyRelease}) {
            QKeyEvent alt(type, Qt::Key_Alt, Qt::AltModifier);
            QCoreApplication::sendEvent(&window, &alt);
        }
        window.menuBar()->setActiveAction(window.menuBar()->actions().constFirst());
    });
    auto* out = new QAction(textOf(texts, Text::keyStepOut), &window);
    out->setObjectName(QStringLiteral("keyStepOut"));
    setQuietKey(*out, Qt::Key_Escape);
    QObject::connect(out, &QAction::triggered, &window, stepOut);
    window.addActions({bar, out});
}

QAction* fullScreenAction(QMainWindow& window, const StringTable& texts) {
    auto* action = new QAction(textOf(texts, Text::keyFullScreen), &window);
    action->setObjectName(QStringLiteral("fullScreen"));
    action->setShortcut(Qt::Key_F11);
    action->setCheckable(true);
    QObject::connect(action, &QAction::triggered, &window, [&window](bool full) {
        window.setWindowState(window.windowState().setFlag(Qt::WindowFullScreen, full));
    });
    return action;
}

} // namespace tarnel
