#include "instruments/instrument_mouse.h"

#include "core/rounding.h"
#include "instruments/instrument_layout.h"
#include "instruments/user_control_1.h"

#include <algorithm>

namespace tarnel {

namespace {

double twipsPerDegree(MouseButton held) {
    return held == MouseButton::left ? 40 : 250;
}

std::int16_t otherOne(std::int16_t selection) {
    return selection + 1 > 2 ? std::int16_t{1} : toInt16(selection + 1);
}

} // namespace

const KnobArea* InstrumentMouse::knobOf(InstrumentArea area) const {
    const InstrumentPicture& picture = instrument.picture;
    switch (area) {
    case InstrumentArea::obsKnob:
        return &picture.Image4;
    case InstrumentArea::headingBugKnob:
        return &picture.Image2;
    case InstrumentArea::selector:
        return &picture.Image3;
    case InstrumentArea::card:
    case InstrumentArea::none:
        break;
    }
    return nullptr;
}

bool InstrumentMouse::usable(InstrumentArea area) const {
    if (const KnobArea* knob = knobOf(area))
        return knob->visible && knob->enabled;
    return area == InstrumentArea::card && instrument.c_DisableKnobs != 0;
}

InstrumentArea InstrumentMouse::areaAt(Point at) const {
    for (const InstrumentArea area :
         {InstrumentArea::obsKnob, InstrumentArea::headingBugKnob, InstrumentArea::selector})
        if (usable(area) && knobOf(area)->area.contains(at))
            return area;
    const auto& numerals = instrument.picture.Label1;
    const bool onNumeral =
        std::any_of(numerals.begin(), numerals.end(), [at](const Label& numeral) {
            return numeral.visible && numeralBox(numeral).contains(at);
        });
    return onNumeral && usable(InstrumentArea::card) ? InstrumentArea::card : InstrumentArea::none;
}

double InstrumentMouse::acrossKnob(Point at) const {
    return at.x - knobOf(pressed)->area.left;
}

InstrumentArea InstrumentMouse::down(Point at) {
    pressed = areaAt(at);
    if (pressed == InstrumentArea::headingBugKnob)
        hdgDrag.press(acrossKnob(at));
    else if (pressed == InstrumentArea::obsKnob)
        obsDrag.press(acrossKnob(at));
    else if (pressed == InstrumentArea::card)
        grabCard(at);
    return pressed;
}

void InstrumentMouse::move(Point at, MouseButton held) {
    if (!usable(pressed))
        return;
    if (pressed == InstrumentArea::headingBugKnob && hdgDrag.active()) {
        const double turned = hdgDrag.travel(acrossKnob(at)) / twipsPerDegree(held);
        const double delta = intoCircle(toInt16(turned));
        turnHeadingBug(hdgDrag.base() + delta);
    } else if (pressed == InstrumentArea::obsKnob && obsDrag.active()) {
        const double turned = obsDrag.travel(acrossKnob(at)) / twipsPerDegree(held);
        const double delta = intoCircle(turned);
        turnCourse(obsDrag.base() - delta);
    } else if (pressed == InstrumentArea::card) {
        turnCourse(cardBase - (faceAngle(at) - cardGrab));
    }
}

void InstrumentMouse::up(Point at) {
    if (pressed == InstrumentArea::headingBugKnob)
        hdgDrag.release(instrument.c_HDGbug);
    else if (pressed == InstrumentArea::obsKnob)
        obsDrag.release(instrument.c_MouseOBS);
    else if (pressed == InstrumentArea::selector && areaAt(at) == InstrumentArea::selector)
        clickSelector();
    pressed = InstrumentArea::none;
}

void InstrumentMouse::click(Point at) {
    down(at);
    up(at);
}

void InstrumentMouse::doubleClick(Point at) {
    if (areaAt(at) == InstrumentArea::headingBugKnob)
        turnHeadingBug(360 - instrument.angle);
    else
        down(at);
}

void InstrumentMouse::stepKnob(InstrumentArea area, int steps) {
    if (!usable(area) || steps == 0)
        return;
    if (area == InstrumentArea::headingBugKnob)
        turnHeadingBug(instrument.c_HDGbug + steps);
    else if (area == InstrumentArea::selector)
        clickSelector();
    else
        turnCourse(instrument.c_MouseOBS - steps);
}

void InstrumentMouse::headingBugWasSet() {
    hdgDrag.rebase(instrument.c_HDGbug);
}

void InstrumentMouse::mouseObsWasSet() {
    obsDrag.rebase(instrument.c_MouseOBS);
}

std::int16_t InstrumentMouse::faceAngle(Point at) const {
    const std::int16_t middle = toInt16(instrument.picture.size / 2);
    const Polar fromMiddle =
        VectorAngleLength(100, {middle, toInt16(-middle)}, {toInt16(at.x), toInt16(-at.y)});
    return toInt16(360 - roundToEven(fromMiddle.course));
}

void InstrumentMouse::grabCard(Point at) {
    cardGrab = faceAngle(at);
    cardBase = toInt16(instrument.angle + cardGrab);
    turnCourse(cardBase);
}

void InstrumentMouse::turnHeadingBug(double heading) {
    instrument.c_HDGbug = toInt16(intoCircle(heading));
    instrument.c_HDGbugChange = 1;
}

void InstrumentMouse::turnCourse(double mouseObs) {
    mouseObs = intoCircle(mouseObs);
    instrument.c_MouseOBS = mouseObs;
    instrument.c_MouseOBS_HSI = mouseObs;
    instrument.c_OBSKnobchange = 1;
}

void InstrumentMouse::clickSelector() {
    if (instrument.Display == static_cast<std::int16_t>(InstrumentKind::adf))
        instrument.c_ADFCardselect = otherOne(instrument.c_ADFCardselect);
    else
        instrument.c_NAVselect = otherOne(instrument.c_NAVselect);
}

} // namespace tarnel
