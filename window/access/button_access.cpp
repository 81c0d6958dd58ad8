#include "window/access/button_access.h"

#include "window/access/by_hand.h"
#include "window/widgets/plain_caption.h"
#include "window/widgets/text_of.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QCheckBox>
#include <QKeySequence>

namespace tarnel {

namespace {

/// Those of its group that are to be seen, in their order.
QList<QAbstractButton*> groupOf(const QAbstractButton& button) {
    QList<QAbstractButton*> members;
    if (button.group())
        members = button.group()->buttons();
    else if (button.parentWidget())
        members = button.parentWidget()->findChildren<QAbstractButton*>(Qt::FindDirectChildrenOnly);
    members.removeIf([&](const QAbstractButton* each) {
        return each->isHidden() || each->group() != button.group() ||
               each->autoExclusive() != button.autoExclusive();
    });
    return members;
}

} // namespace

ButtonAccess::ButtonAccess(QAbstractButton& shown, const StringTable& table)
    : QAccessibleWidget(&shown), button(shown), texts(table) {}

bool ButtonAccess::isChoice() const {
    return button.group() ? button.group()->exclusive() : button.autoExclusive();
}

QAccessible::Role ButtonAccess::role() const {
    return isChoice() ? QAccessible::RadioButton : QAccessible::CheckBox;
}

QAccessible::State ButtonAccess::state() const {
    QAccessible::State own = QAccessibleWidget::state();
    const auto* box = qobject_cast<const QCheckBox*>(&button);
    own.checkable = true;
    own.checked = button.isChecked();
    own.checkStateMixed = box && box->checkState() == Qt::PartiallyChecked;
    own.pressed = button.isDown();
    return own;
}

QString ButtonAccess::placeInGroup() const {
    const auto group = groupOf(button);
    const auto place = group.indexOf(&button) + 1;
    return place > 0 ? textOf(texts, Text::someOf).arg(place).arg(group.size()) : QString();
}

QString ButtonAccess::text(QAccessible::Text kind) const {
    QString told = QAccessibleWidget::text(kind);
    if (kind == QAccessible::Name && told.isEmpty())
        return plainCaption(button.text());
    if (kind == QAccessible::Accelerator)
        return button.shortcut().toString(QKeySequence::NativeText);
    if (kind != QAccessible::Description || !isChoice())
        return told;
    QStringList parts{placeInGroup(), told};
    parts.removeAll(QString());
    return parts.join(QStringLiteral(", "));
}

QStringList ButtonAccess::actionNames() const {
    return QStringList{toggleAction(), pressAction()} + QAccessibleWidget::actionNames();
}

void ButtonAccess::doAction(const QString& action) {
    if (action == toggleAction() || action == pressAction())
        byHand(button, [&clicked = button] { clicked.click(); });
    else
        QAccessibleWidget::doAction(action);
}

} // namespace tarnel
