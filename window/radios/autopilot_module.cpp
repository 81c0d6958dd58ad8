#include "window/radios/autopilot_module.h"

#include "look/panel_look.h"
#include "window/dials/spoken_reading.h"
#include "window/widgets/spoken.h"
#include "window/widgets/text_of.h"

#include <QPainter>

namespace tarnel {

namespace {

constexpr int hundredFeetZeros = 2;
constexpr double feetPerHundred = 100;
constexpr double mostDigits = 5;
constexpr double sweepFrom = -135;
constexpr double sweep = 270;

/// The pointer for a value from 0 to `maximum`.
double swept(double value, double maximum) {
    return sweepFrom + sweep * value / maximum;
}

} // namespace

AutopilotModule::AutopilotModule(APControlFace& autopilot, PictureStore& store,
                                 const StringTable& table, QWidget* parent)
    : ModuleFrame(textOf(table, Text::faceAutopilot), parent),
      face(autopilot),
      pictures(store),
      texts(table) {
    addColumn(AutopilotKnob::heading, face.headingDigits, Text::autopilotHeading,
              Text::unitDegrees);
    addColumn(AutopilotKnob::airSpeed, face.airSpeedDigits, Text::autopilotSpeed, Text::unitKnots);
    addColumn(AutopilotKnob::altitude, face.altitudeDigits, Text::autopilotAltitude,
              Text::unitFeet);
    describe(*columns[0].knob, Text::spokenAutopilotHeadingKnob, Text::autopilotHeadingTip,
             Text::knobHandsTip);
    columns[0].knob->setToolTip(columns[0].knob->toolTip() + QLatin1Char('\n') +
                                textOf(texts, Text::presentHeadingTip));
    describe(*columns[1].knob, Text::spokenAutopilotSpeedKnob, Text::autopilotSpeedTip,
             Text::rateHandsTip);
    describe(*columns[2].knob, Text::spokenAutopilotAltitudeKnob, Text::autopilotAltitudeTip,
             Text::rateHandsTip);
    columns[0].knob->doubleClick = [this] {
        change([this] { face.doubleClick(AutopilotKnob::heading); });
    };
    refresh();
}

void AutopilotModule::addColumn(AutopilotKnob which, const DigitReadout& readout, Text label,
                                Text unit) {
    DigitStyle style;
    style.label = textOf(texts, label);
    style.unit = textOf(texts, unit);
    style.roomFor = mostDigits;
    style.printedZeros = which == AutopilotKnob::altitude ? hundredFeetZeros : 0;
    columns.push_back({which, label, unit,
                       std::make_unique<DigitDisplay>(readout, pictures, style, this),
                       std::make_unique<KnobWidget>(pictures, KnobCap::single, this)});
    connectKnob(which, *columns.back().knob);
}

void AutopilotModule::describe(KnobWidget& knob, Text name, Text tip, Text hands) {
    knob.setAccessibleName(textOf(texts, name));
    knob.setToolTip(textOf(texts, tip) + QLatin1Char('\n') + textOf(texts, hands));
}

void AutopilotModule::connectKnob(AutopilotKnob which, KnobWidget& knob) {
    knob.press = [this, which](Point at) {
        change([this, which, at] { face.mouseDown(which, at.x); });
    };
    knob.move = [this](Point at, MouseButton held) {
        change([this, at, held] { face.mouseMove(at.x, held); });
    };
    knob.release = [this] { change([this] { face.mouseUp(); }); };
    knob.step = [this, which](int steps) { change([this, which, steps] { step(which, steps); }); };
    knob.travel = [this, which] { return travel(which); };
}

/// Degrees, knots and feet; nothing of what is not to be seen.
KnobTravel AutopilotModule::travel(AutopilotKnob which) const {
    constexpr double lastDegree = 359;
    KnobTravel heading{.value = face.c_HDG, .most = lastDegree, .step = 1, .round = true};
    KnobTravel airSpeed{.value = face.c_TAS, .most = APControlFace::maximumTAS, .step = 1};
    KnobTravel altitude{.value = face.c_ALT,
                        .most = APControlFace::maximumALT * feetPerHundred,
                        .step = feetPerHundred};
    if (which == AutopilotKnob::heading)
        return face.headingDigits.isDark() ? KnobTravel{} : heading;
    if (which == AutopilotKnob::airSpeed)
        return face.airSpeedDigits.isDark() ? KnobTravel{} : airSpeed;
    return face.altitudeDigits.isDark() ? KnobTravel{} : altitude;
}

void AutopilotModule::step(AutopilotKnob which, int steps) {
    if (which == AutopilotKnob::heading)
        face.stepHeading(steps);
    else if (which == AutopilotKnob::airSpeed)
        face.stepTAS(steps);
    else
        face.stepALT(steps);
}

void AutopilotModule::change(const std::function<void()>& action) {
    guard(action);
    refresh();
}

KnobWidget& AutopilotModule::knob(AutopilotKnob which) {
    for (Column& column : columns)
        if (column.which == which)
            return *column.knob;
    return *columns.front().knob;
}

void AutopilotModule::refresh() {
    for (Column& column : columns) {
        column.digits->refresh();
        column.digits->setDimmed(face.c_OnOff != 1);
        column.knob->setDimmed(!face.knobsAct());
    }
    setDimmed(face.c_OnOff != 1);
    turnPointers();
    if (face.surface.revision() != spoken)
        speak();
}

void AutopilotModule::turnPointers() {
    columns[0].knob->setPointer(face.headingDigits.isCovered() ? 0 : face.c_HDG.get());
    columns[1].knob->setPointer(swept(face.c_TAS, APControlFace::maximumTAS));
    columns[2].knob->setPointer(swept(face.c_ALT / feetPerHundred, APControlFace::maximumALT));
}

void AutopilotModule::speak() {
    spoken = face.surface.revision();
    const DigitReadout* const readouts[] = {&face.headingDigits, &face.airSpeedDigits,
                                            &face.altitudeDigits};
    for (std::size_t i = 0; i < columns.size(); ++i) {
        QString value = QString::fromStdString(spokenDigits(*readouts[i], 0, texts));
        if (columns[i].which == AutopilotKnob::altitude)
            value += QString(hundredFeetZeros, '0');
        value += ' ' + textOf(texts, columns[i].unit);
        columns[i].knob->setValueText(value);
        setSpokenName(*columns[i].digits, value);
    }
}

/// Left edge of a column, those being as wide as modules of a third of the panel would be.
double AutopilotModule::columnLeft(std::size_t column) const {
    return static_cast<double>(column) * (width() + look::gap) /
           static_cast<double>(columns.size());
}

void AutopilotModule::placeParts(const QRectF& body) {
    constexpr double labelRoom = 160;
    const double inset = look::moduleInset * scale();
    std::vector<Unit> labels;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        QRectF cell = body;
        cell.setLeft(columnLeft(i) + inset);
        cell.setRight(columnLeft(i + 1) - look::gap - inset);
        const bool labelFits =
            isStacked(cell.size(), 1, scale()) || cell.width() >= labelRoom * scale();
        columns[i].digits->setLabelShown(labelFits);
        placeReading(cell, scale(), *columns[i].digits, *columns[i].knob);
        if (!labelFits)
            labels.push_back({textOf(texts, columns[i].label), cell.right()});
    }
    setUnits(std::move(labels));
}

void AutopilotModule::paintMore(QPainter& painter) {
    constexpr double light = 0.07;
    const double inset = look::moduleInset * scale();
    for (std::size_t i = 1; i < columns.size(); ++i) {
        const double x = std::floor(columnLeft(i) - look::gap / 2.0) + 0.5;
        painter.setPen(QPen(look::faded(Qt::black, 0.4), 1));
        painter.drawLine(QPointF(x, inset), QPointF(x, height() - inset));
        painter.setPen(QPen(look::faded(Qt::white, light), 1));
        painter.drawLine(QPointF(x + 1, inset), QPointF(x + 1, height() - inset));
    }
}

} // namespace tarnel
