#pragma once

#include <QAccessible>
#include <QString>

class QWidget;

namespace tarnel {

/// What a screen reader calls `widget`, and what it says of it. Qt announces either whenever it is
/// set: one that stands there already is not set anew.
void setSpokenName(QWidget& widget, const QString& name);
void setSpokenDescription(QWidget& widget, const QString& words);

/// What `widget` is to a screen reader where its class tells nothing. To be said before it is
/// shown.
void setSpokenRole(QWidget& widget, QAccessible::Role role);
/// `NoRole` where nothing was said.
[[nodiscard]] QAccessible::Role spokenRole(const QWidget& widget);

} // namespace tarnel
