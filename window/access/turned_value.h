#pragma once

#include "window/widgets/knob_travel.h"

#include <QAccessible>

class QWidget;

namespace tarnel {

/// `TurnedValue`: the number at which something turned by hand stands. To set it turns the knob by
/// steps, as wheel and keys do, so a knob that is locked stays where it is.
class TurnedValue : public QAccessibleValueInterface {
  public:
    /// Both are called while `widget` is there.
    TurnedValue(QWidget& widget, std::function<KnobTravel()> travel, std::function<void(int)> step);

    [[nodiscard]] QVariant currentValue() const override;
    void setCurrentValue(const QVariant& value) override;
    [[nodiscard]] QVariant maximumValue() const override;
    [[nodiscard]] QVariant minimumValue() const override;
    [[nodiscard]] QVariant minimumStepSize() const override;

    /// The actions that turn it, and whether `action` was one of them.
    [[nodiscard]] static QStringList actionNames();
    bool turn(const QString& action);

  private:
    QWidget& widget;
    std::function<KnobTravel()> travel;
    std::function<void(int)> step;
};

} // namespace tarnel
