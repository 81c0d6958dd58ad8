#include "window/wind_entry.h"

#include "window/text_of.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QSpinBox>

#include <cmath>

namespace tarnel {

namespace {

constexpr int highestDirection = 359;
constexpr int highestSpeed = 200; ///< the mouse draws hardly more across the chart
constexpr int step = 5;
constexpr int gapBetweenFields = 12;

bool isTypedInto(const QSpinBox& field) {
    const auto* editor = field.findChild<QLineEdit*>();
    return field.hasFocus() && editor && editor->isModified();
}

void showValue(QSpinBox& field, int value) {
    if (field.value() == value || isTypedInto(field))
        return;
    const QSignalBlocker quiet(&field);
    field.setValue(value);
}

} // namespace

WindEntry::WindEntry(Form1& owner, QWidget* parent) : QWidget(parent), form(owner) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    direction = addField("WindDirection", Text::windDirectionEntry, Text::unitDegreeSign);
    direction->setRange(0, highestDirection);
    direction->setWrapping(true);
    row->addSpacing(gapBetweenFields);
    speed = addField("WindSpeed", Text::windSpeedEntry, Text::unitKnots);
    speed->setRange(0, highestSpeed);
    speed->setSuffix(QLatin1Char(' ') + speed->suffix());
}

QSpinBox* WindEntry::addField(const char* name, Text caption, Text unit) {
    auto* label = new QLabel(textOf(form.texts, caption), this);
    label->setProperty("secondary", true);
    auto* field = new QSpinBox(this);
    field->setObjectName(QString::fromLatin1(name));
    field->setAccessibleName(label->text());
    field->setSuffix(textOf(form.texts, unit));
    field->setSingleStep(step);
    field->setKeyboardTracking(false);
    label->setBuddy(field);
    connect(field, &QSpinBox::valueChanged, this, &WindEntry::take);
    connect(field, &QSpinBox::editingFinished, this,
            [field] { field->findChild<QLineEdit*>()->setModified(false); });
    layout()->addWidget(label);
    layout()->addWidget(field);
    return field;
}

void WindEntry::take() {
    form.guarded([this] {
        form.setManualWind(direction->value(), static_cast<std::int16_t>(speed->value()));
    });
}

bool WindEntry::tells() const {
    const std::int16_t source = form.UserControl11.c_WindSetEN;
    const bool ownWind = source == 0 || source == 1 || source == 3;
    return ownWind || form.windPage.show.value() == 1;
}

void WindEntry::refresh() {
    if (!tells())
        return;
    const Wind& wind = form.UserControl11.wind;
    showValue(*direction, static_cast<int>(std::lround(wind.direction)) % (highestDirection + 1));
    showValue(*speed, wind.speed);
}

} // namespace tarnel
