#pragma once

#include "window/access/turned_value.h"

#include <QAccessibleWidget>

namespace tarnel {

class KnobWidget;
class SteppedDigits;

/// `KnobAccess`: a knob, or digits that are stepped like one, as a dial with a value.
///
/// Its description has the value in words, with its unit and "switched off", and is what is sent
/// when it changes: Orca says that once more than a new value, and keeps an old one otherwise.
class KnobAccess : public QAccessibleWidget {
  public:
    explicit KnobAccess(KnobWidget& knob);
    explicit KnobAccess(SteppedDigits& digits);

    void* interface_cast(QAccessible::InterfaceType type) override;
    [[nodiscard]] QString text(QAccessible::Text kind) const override;
    [[nodiscard]] QStringList actionNames() const override;
    void doAction(const QString& action) override;

  private:
    std::function<QString()> words;
    std::function<void()> press;
    TurnedValue value;
};

} // namespace tarnel
