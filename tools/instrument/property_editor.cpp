#include "tools/instrument/property_editor.h"

#include "tools/instrument/input_range.h"

#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSlider>

#include <cmath>

namespace tarnel {

namespace {

bool isText(const PropertyBase& property) {
    return dynamic_cast<const Property<std::string>*>(&property) != nullptr;
}

bool hasDecimals(const PropertyBase& property) {
    return dynamic_cast<const Property<double>*>(&property) != nullptr;
}

} // namespace

PropertyEditor::PropertyEditor(PropertyBase& edited, QWidget* parent)
    : QWidget(parent), property(edited) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    if (isText(property))
        makeText();
    else if (isKnobFlag(property.name()))
        makeLamp();
    else
        makeNumber();
    refresh();
}

void PropertyEditor::refresh() {
    const QString now = QString::fromStdString(property.text());
    if (now == shown)
        return;
    shown = now;
    show(now);
}

void PropertyEditor::set(const QString& text) {
    change([this, text] { property.setText(text.toStdString()); });
}

void PropertyEditor::makeNumber() {
    constexpr int sliderWidth = 240;
    constexpr int fieldWidth = 84;
    const Range<double> range = inputRange(property.name());
    auto* slider = new QSlider(Qt::Horizontal, this);
    auto* field = new QDoubleSpinBox(this);
    slider->setRange(static_cast<int>(range.lowest), static_cast<int>(range.highest));
    slider->setFixedWidth(sliderWidth);
    field->setRange(range.lowest, range.highest);
    field->setDecimals(hasDecimals(property) ? 1 : 0);
    field->setFixedWidth(fieldWidth);
    field->setLocale(QLocale::c());
    for (QWidget* widget : {static_cast<QWidget*>(slider), static_cast<QWidget*>(field)}) {
        widget->setAccessibleName(QString::fromStdString(std::string(property.name())));
        layout()->addWidget(widget);
    }
    connect(slider, &QSlider::valueChanged, this,
            [this](int value) { set(QString::number(value)); });
    connect(field, &QDoubleSpinBox::valueChanged, this,
            [this](double value) { set(QString::number(value)); });
    show = [slider, field](const QString& text) {
        const QSignalBlocker quietSlider(slider);
        const QSignalBlocker quietField(field);
        slider->setValue(static_cast<int>(std::lround(text.toDouble())));
        field->setValue(text.toDouble());
    };
}

void PropertyEditor::makeText() {
    auto* field = new QLineEdit(this);
    field->setAccessibleName(QString::fromStdString(std::string(property.name())));
    layout()->addWidget(field);
    connect(field, &QLineEdit::textEdited, this, [this](const QString& text) { set(text); });
    show = [field](const QString& text) { field->setText(text); };
}

void PropertyEditor::makeLamp() {
    auto* lamp = new QPushButton(this);
    lamp->setAccessibleName(QString::fromStdString(std::string(property.name())));
    layout()->addWidget(lamp);
    connect(lamp, &QPushButton::clicked, this, [this] { set(QStringLiteral("0")); });
    show = [lamp](const QString& text) {
        const bool lit = text != QStringLiteral("0");
        lamp->setText(lit ? tr("turned (%1): put out").arg(text) : tr("not turned"));
        lamp->setEnabled(lit);
    };
}

} // namespace tarnel
