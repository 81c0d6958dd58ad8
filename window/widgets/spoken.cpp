#include "window/widgets/spoken.h"

#include <QVariant>
#include <QWidget>

namespace tarnel {

namespace {

constexpr const char* roleProperty = "spokenRole";

} // namespace

void setSpokenName(QWidget& widget, const QString& name) {
    if (widget.accessibleName() != name)
        widget.setAccessibleName(name);
}

void setSpokenDescription(QWidget& widget, const QString& words) {
    if (widget.accessibleDescription() != words)
        widget.setAccessibleDescription(words);
}

void setSpokenRole(QWidget& widget, QAccessible::Role role) {
    widget.setProperty(roleProperty, static_cast<int>(role));
}

QAccessible::Role spokenRole(const QWidget& widget) {
    return static_cast<QAccessible::Role>(widget.property(roleProperty).toInt());
}

} // namespace tarnel
