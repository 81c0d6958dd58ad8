#pragma once

#include "core/property.h"

#include <QWidget>

#include <functional>

namespace tarnel {

/// `PropertyEditor`: shows one property and takes a new value for it: numbers by a slider and a
/// field, texts by a field, knob flags by a lamp that a click puts out.
class PropertyEditor : public QWidget {
    Q_OBJECT

  public:
    explicit PropertyEditor(PropertyBase& edited, QWidget* parent = nullptr);

    /// Shows the present value if it is another one.
    void refresh();

    /// Called with what is to be done to the property. Must be set.
    std::function<void(const std::function<void()>&)> change;

  private:
    void makeNumber();
    void makeText();
    void makeLamp();
    void set(const QString& text);

    PropertyBase& property;
    std::function<void(const QString&)> show;
    QString shown;
};

} // namespace tarnel
