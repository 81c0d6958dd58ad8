#include "window/access/knob_access.h"

#include "window/access/by_hand.h"
#include "window/widgets/knob_widget.h"
#include "window/widgets/stepped_digits.h"

namespace tarnel {

KnobAccess::KnobAccess(KnobWidget& knob)
    : QAccessibleWidget(&knob, QAccessible::Dial),
      words([&knob] { return knob.valueText(); }),
      press([&knob] { knob.click(); }),
      value(
          knob, [&knob] { return knob.travel ? knob.travel() : KnobTravel{}; },
          [&knob](int steps) {
              if (knob.step)
                  knob.step(steps);
          }) {}

KnobAccess::KnobAccess(SteppedDigits& digits)
    : QAccessibleWidget(&digits, QAccessible::Dial),
      words([&digits] { return digits.accessibleDescription(); }),
      press([&digits] { digits.stepBy(1); }),
      value(
          digits, [&digits] { return digits.travel ? digits.travel() : KnobTravel{}; },
          [&digits](int steps) { digits.stepBy(steps); }) {}

void* KnobAccess::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::ValueInterface)
        return static_cast<QAccessibleValueInterface*>(&value);
    return QAccessibleWidget::interface_cast(type);
}

QString KnobAccess::text(QAccessible::Text kind) const {
    if (kind == QAccessible::Value || kind == QAccessible::Description)
        return words();
    return QAccessibleWidget::text(kind);
}

QStringList KnobAccess::actionNames() const {
    return TurnedValue::actionNames() + QStringList{pressAction()} +
           QAccessibleWidget::actionNames();
}

void KnobAccess::doAction(const QString& action) {
    if (action == pressAction())
        byHand(*widget(), press);
    else if (!value.turn(action))
        QAccessibleWidget::doAction(action);
}

} // namespace tarnel
