#include "window/access/turned_value.h"

#include "window/access/by_hand.h"

#include <QVariant>

namespace tarnel {

TurnedValue::TurnedValue(QWidget& turned, std::function<KnobTravel()> whereItStands,
                         std::function<void(int)> turnBy)
    : widget(turned), travel(std::move(whereItStands)), step(std::move(turnBy)) {}

QVariant TurnedValue::currentValue() const {
    return travel().value;
}

QVariant TurnedValue::maximumValue() const {
    return travel().most;
}

QVariant TurnedValue::minimumValue() const {
    return travel().least;
}

QVariant TurnedValue::minimumStepSize() const {
    return travel().step;
}

void TurnedValue::setCurrentValue(const QVariant& value) {
    byHand(widget,
           [wanted = value.toDouble(), from = travel, by = step] { turnTo(wanted, from(), by); });
}

QStringList TurnedValue::actionNames() {
    return {QAccessibleActionInterface::increaseAction(),
            QAccessibleActionInterface::decreaseAction()};
}

bool TurnedValue::turn(const QString& action) {
    const auto way = actionNames().indexOf(action);
    if (way >= 0)
        byHand(widget, [by = step, way] { by(way == 0 ? 1 : -1); });
    return way >= 0;
}

} // namespace tarnel
