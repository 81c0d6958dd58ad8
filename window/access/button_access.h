#pragma once

#include "strings/string_table.h"

#include <QAccessibleWidget>

class QAbstractButton;

namespace tarnel {

/// `ButtonAccess`: a button that can be on or off. Qt's own toggles it without a click, and a click
/// is what the trainer hears; here press and toggle are the same click.
///
/// One of a group says its place in it: Qt 6.4 has no other words for that than a description.
class ButtonAccess : public QAccessibleWidget {
  public:
    ButtonAccess(QAbstractButton& button, const StringTable& texts);

    [[nodiscard]] QAccessible::Role role() const override;
    [[nodiscard]] QAccessible::State state() const override;
    [[nodiscard]] QString text(QAccessible::Text kind) const override;
    [[nodiscard]] QStringList actionNames() const override;
    void doAction(const QString& action) override;

  private:
    [[nodiscard]] bool isChoice() const;
    [[nodiscard]] QString placeInGroup() const;

    QAbstractButton& button;
    const StringTable& texts;
};

} // namespace tarnel
