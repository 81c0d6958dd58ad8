#include "window/access/part.h"

#include "window/access/by_hand.h"

#include <QWidget>
#include <QWindow>

#include <algorithm>

namespace tarnel {

QWindow* Part::window() const {
    return whole ? whole->window()->windowHandle() : nullptr;
}

QAccessibleInterface* Part::parent() const {
    return QAccessible::queryAccessibleInterface(whole);
}

QRect Part::rect() const {
    const QRect place = area();
    return {whole->mapToGlobal(place.topLeft()), place.size()};
}

QString Part::text(QAccessible::Text kind) const {
    if (kind == QAccessible::Name)
        return name();
    return kind == QAccessible::Description ? description() : QString();
}

/// Its own is what of the widget's holds for all of it.
QAccessible::State Part::state() const {
    QAccessible::State own;
    own.disabled = !whole->isEnabled();
    own.invisible = !whole->isVisible();
    return own;
}

void* Part::interface_cast(QAccessible::InterfaceType type) {
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                : nullptr;
}

QStringList Part::actionNames() const {
    return press() ? QStringList{pressAction()} : QStringList();
}

void Part::doAction(const QString& action) {
    if (const auto pressed = press(); pressed && action == pressAction())
        byHand(*whole, pressed);
}

Whole::~Whole() {
    for (const QAccessible::Id part : parts)
        QAccessible::deleteAccessibleInterface(part);
}

int Whole::childCount() const {
    return partCount() + QAccessibleWidget::childCount();
}

QAccessibleInterface* Whole::child(int index) const {
    const int count = partCount();
    if (index < 0 || index >= count)
        return QAccessibleWidget::child(index - count);
    while (static_cast<int>(parts.size()) <= index)
        parts.push_back(
            QAccessible::registerAccessibleInterface(makePart(static_cast<int>(parts.size()))));
    return QAccessible::accessibleInterface(parts[static_cast<std::size_t>(index)]);
}

QAccessibleInterface* Whole::childAt(int x, int y) const {
    for (int i = 0; i < partCount(); ++i)
        if (QAccessibleInterface* part = child(i); part->rect().contains(x, y))
            return part;
    return QAccessibleWidget::childAt(x, y);
}

int Whole::indexOfChild(const QAccessibleInterface* wanted) const {
    for (int i = 0; i < partCount(); ++i)
        if (child(i) == wanted)
            return i;
    const int among = QAccessibleWidget::indexOfChild(wanted);
    return among < 0 ? among : among + partCount();
}

} // namespace tarnel
