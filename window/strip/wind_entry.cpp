#include "window/strip/wind_entry.h"

#include "window/widgets/text_of.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QSpinBox>

#include <algorithm>
#include <cmath>

namespace tarnel {

namespace {

constexpr int highestDirection = 359;
constexpr int highestSpeed = 200; ///< the mouse draws hardly more across the chart
constexpr int step = 5;
constexpr int gapBetweenFields = 12;

constexpr int untold = -1; ///< stands for no figure, so that a typed 0 is one

/// A field of the wind. A step on one without a figure counts from 0.
class WindField : public QSpinBox {
  public:
    using QSpinBox::QSpinBox;
    void stepBy(int steps) override {
        {
            const QSignalBlocker quiet(this);
            setSpecialValueText({});
            setValue(std::max(value(), 0)); // below its range it would wrap
            setMinimum(0);
        }
        QSpinBox::stepBy(steps);
    }
};

bool isTypedInto(const QSpinBox& field) {
    const auto* editor = field.findChild<QLineEdit*>();
    return field.hasFocus() && editor && editor->isModified();
}

void showValue(QSpinBox& field, int value) {
    if (isTypedInto(field) || field.value() == value)
        return;
    const QSignalBlocker quiet(&field);
    field.setSpecialValueText(value == untold ? QStringLiteral(" ") : QString());
    field.setMinimum(std::min(value, 0));
    field.setValue(value);
}

} // namespace

WindEntry::WindEntry(WindDesk& windDesk, BoxDesk& boxDesk, QWidget* parent)
    : QWidget(parent), desk(windDesk), boxes(boxDesk) {
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
    auto* label = new QLabel(textOf(boxes.texts, caption), this);
    label->setProperty("secondary", true);
    auto* field = new WindField(this);
    field->setObjectName(QString::fromLatin1(name));
    field->setAccessibleName(label->text());
    field->setSuffix(textOf(boxes.texts, unit));
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
    boxes.guarded([this] {
        desk.setManual(std::max(direction->value(), 0),
                       static_cast<std::int16_t>(std::max(speed->value(), 0)));
    });
}

void WindEntry::refresh() {
    const bool told = desk.isTold();
    const Wind& wind = desk.present();
    const int degrees = static_cast<int>(std::lround(wind.direction)) % (highestDirection + 1);
    showValue(*direction, told ? degrees : untold);
    showValue(*speed, told ? wind.speed : untold);
}

} // namespace tarnel
