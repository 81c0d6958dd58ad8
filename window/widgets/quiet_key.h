#pragma once

#include <QAction>
#include <QKeyEvent>
#include <QKeySequence>
#include <QWidget>

namespace tarnel {

// A quiet key means an action of the window only where no part of it wants the key for itself, as
// Space on a button does.

constexpr const char* quietKeyProperty = "quietKey";
/// Of a part that has actions of its own: what a list of keys calls them together.
constexpr const char* keyGroupProperty = "keyGroup";

inline void setQuietKey(QAction& action, Qt::Key key) {
    action.setProperty(quietKeyProperty, QVariant::fromValue(QKeySequence(key)));
}

/// All keys of an action, the quiet one last.
[[nodiscard]] inline QList<QKeySequence> keysOf(const QAction& action) {
    QList<QKeySequence> keys = action.shortcuts();
    if (const QVariant quiet = action.property(quietKeyProperty); quiet.isValid())
        keys << quiet.value<QKeySequence>();
    return keys;
}

/// Triggers the action of `window` that has the key as a quiet one. False if none has. To be called
/// with what all others have passed over.
inline bool takeQuietKey(const QWidget& window, const QKeyEvent& event) {
    const QKeySequence pressed(event.keyCombination());
    for (QAction* action : window.findChildren<QAction*>())
        if (action->isEnabled() &&
            action->property(quietKeyProperty).value<QKeySequence>() == pressed) {
            if (!event.isAutoRepeat())
                action->trigger();
            return true;
        }
    return false;
}

} // namespace tarnel
