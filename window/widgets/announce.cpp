#include "window/widgets/announce.h"

#include "window/widgets/spoken.h"

#include <QWidget>

namespace tarnel {

namespace {

constexpr QLatin1String announcerName("Announcer");

/// Bears the words of a window, unseen. Orca passes over a new name of what has not got the
/// keyboard, and over most of what begins to show. What it speaks from anywhere is an object with
/// the role of a notification that does.
QWidget& announcerOf(QWidget& window) {
    if (auto* found = window.findChild<QWidget*>(announcerName, Qt::FindDirectChildrenOnly))
        return *found;
    auto* announcer = new QWidget(&window);
    announcer->setObjectName(announcerName);
    setSpokenRole(*announcer, QAccessible::Notification);
    announcer->hide();
    return *announcer;
}

} // namespace

void announce(QWidget& from, const QString& words) {
    if (words.isEmpty())
        return;
    QWidget& announcer = announcerOf(*from.window());
    setSpokenName(announcer, words);
    QAccessibleEvent shows(&announcer, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&shows);
}

} // namespace tarnel
