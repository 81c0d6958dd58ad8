#include "instruments/instrument_mouse.h"

#include "core/angle.h"
#include "core/rounding.h"
#include "instruments/instrument_layout.h"
#include "instruments/needle_role.h"
#include "instruments/user_control_1.h"

#include <algorithm>
#include <cmath>

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
    case InstrumentArea::headingBug:
    case InstrumentArea::none:
        break;
    }
    return nullptr;
}

bool InstrumentMouse::usable(InstrumentArea area) const {
    if (const KnobArea* knob = knobOf(area))
        return knob->visible && knob->enabled;
    if (instrument.c_DisableKnobs == 0)
        return false;
    if (area == InstrumentArea::headingBug)
        return hasHeadingBug(instrument.picture.kind);
    return area == InstrumentArea::card && instrument.turnsCourse();
}

bool InstrumentMouse::onNumeral(Point at) const {
    const auto& numerals = instrument.picture.Label1;
    return std::any_of(numerals.begin(), numerals.end(), [at](const Label& numeral) {
        return numeral.visible && numeralBox(numeral).contains(at);
    });
}

/// On the bug or a little beside it, anywhere between the numerals and the edge of the dial.
bool InstrumentMouse::onHeadingBug(Point at) const {
    constexpr double reach = 9;
    constexpr double innerEdge = 0.64; ///< of half the card's square
    constexpr double outerEdge = 0.82;
    const double half = instrument.picture.size / 2;
    const double radius = std::hypot(at.x - half, at.y - half);
    const double cardHalf =
        half * cardScaleOf(static_cast<InstrumentKind>(instrument.Display.get()));
    const double beside =
        std::remainder(bearingOf(at) - instrument.c_HDGbug - instrument.angle, 360.0);
    return radius > innerEdge * cardHalf && radius < outerEdge * cardHalf &&
           std::abs(beside) <= reach;
}

InstrumentArea InstrumentMouse::areaAt(Point at) const {
    using enum InstrumentArea;
    for (const InstrumentArea area : {obsKnob, headingBugKnob, selector})
        if (usable(area) && knobOf(area)->area.contains(at))
            return area;
    if (usable(headingBug) && onHeadingBug(at))
        return headingBug;
    return usable(card) && onNumeral(at) ? card : none;
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
    else if (pressed == InstrumentArea::headingBug)
        bugGrab = instrument.c_HDGbug + instrument.angle - bearingOf(at);
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
        dragCard(at);
    } else if (pressed == InstrumentArea::headingBug) {
        turnHeadingBug(bearingOf(at) + bugGrab - instrument.angle);
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
    if (area == InstrumentArea::headingBugKnob || area == InstrumentArea::headingBug)
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

double InstrumentMouse::bearingOf(Point at) const {
    const std::int16_t middle = toInt16(instrument.picture.size / 2);
    const Polar fromMiddle =
        VectorAngleLength(100, {middle, toInt16(-middle)}, {toInt16(at.x), toInt16(-at.y)});
    return roundToEven(fromMiddle.course);
}

/// The numeral pressed comes to the top of a VOR indicator, and its card then turns with the hand.
void InstrumentMouse::grabCard(Point at) {
    const double bearing = bearingOf(at);
    cardGrab = instrument.angle - 2 * bearing;
    dragCard(at);
}

/// The card's angle of a VOR indicator, and the course away from it on an HSI, is what the mouse
/// puts out.
void InstrumentMouse::dragCard(Point at) {
    const double bearing = bearingOf(at);
    const bool arrow = instrument.Display == static_cast<std::int16_t>(InstrumentKind::hsi);
    turnCourse(arrow ? instrument.angle - bearing : cardGrab + bearing);
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
