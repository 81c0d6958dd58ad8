#include "window/radios/nav_module.h"

#include "window/dials/spoken_reading.h"
#include "window/radios/receiver_travel.h"
#include "window/widgets/spoken.h"
#include "window/widgets/text_of.h"

namespace tarnel {

namespace {

constexpr double firstSlotDegrees = -60;
constexpr double slotDegrees = 60;
constexpr double frequencyRoom = 5.26; ///< so that all receivers' digits are of one height

} // namespace

NavModule::NavModule(RadioFace& receiver, const ReceiverTexts& captions, PictureStore& pictures,
                     const StringTable& table, QWidget* parent)
    : ModuleFrame(textOf(table, captions.caption), parent),
      face(receiver),
      words(captions),
      texts(table),
      digits(receiver.frequency, pictures,
             {.pointAfter = captions.pointAfter, .roomFor = frequencyRoom}, this),
      frequencyKnob(pictures, KnobCap::concentric, this) {
    frequencyKnob.setToolTip(textOf(texts, words.tip) + QLatin1Char('\n') +
                             textOf(texts, Text::frequencyHandsTip));
    frequencyKnob.setAccessibleName(accessibleName() + ", " +
                                    textOf(texts, Text::spokenFrequencyKnob));
    connectKnob();
    refresh();
}

void NavModule::connectKnob() {
    frequencyKnob.press = [this](Point at) { change([this, at] { face.mouseDown(at); }); };
    frequencyKnob.move = [this](Point at, MouseButton /*held*/) {
        change([this, at] { face.mouseMove(at); });
    };
    frequencyKnob.release = [this] { change([this] { face.mouseUp(); }); };
    frequencyKnob.lost = [this] { change([this] { face.mouseLost(); }); };
    frequencyKnob.step = [this](int steps) {
        change([this, steps] { steps > 0 ? face.stepUp() : face.stepDown(); });
    };
    frequencyKnob.travel = [this] { return travelOf(face); };
}

void NavModule::change(const std::function<void()>& action) {
    guard(action);
    refresh();
}

void NavModule::refresh() {
    digits.refresh();
    digits.setDimmed(face.c_OnOff != 1);
    setDimmed(face.c_OnOff != 1);
    frequencyKnob.setDimmed(!face.knobActs());
    frequencyKnob.setPointer(firstSlotDegrees + slotDegrees * face.dialPosition());
    if (face.surface.revision() == spoken)
        return;
    spoken = face.surface.revision();
    const QString told =
        QString::fromStdString(spokenDigits(face.frequency, words.pointAfter, texts));
    frequencyKnob.setValueText(told);
    setSpokenName(digits, told);
}

void NavModule::placeParts(const QRectF& body) {
    const double right = placeReading(body, scale(), digits, frequencyKnob);
    setUnits({{textOf(texts, words.unit), right}});
}

} // namespace tarnel
