#include "instruments/ap_control_face.h"

#include "core/angle.h"
#include "core/rounding.h"

#include <algorithm>
#include <cmath>

namespace tarnel {

namespace {

double steps(const KnobDrag& drag, double x, double twipsPerStep) {
    return toInt16(drag.travel(x) / twipsPerStep);
}

} // namespace

std::int16_t headingHoldRate(double selected, double actual) {
    if (selected == 360 && actual < 180)
        selected = 0;
    if (selected == 0 && actual >= 180)
        selected = 360;
    if (roundTo(selected, 1) == roundTo(actual, 1))
        return 0;
    const double apart = selected - actual;
    const int rate = std::abs(apart) < 6 ? 1 : 3;
    const bool acrossNorth = std::abs(apart) > 180;
    return static_cast<std::int16_t>((apart > 0) != acrossNorth ? rate : -rate);
}

void APControlFace::headingWasSet() {
    selectedHeading = c_HDG;
    hdgDrag.rebase(toInt16(c_HDG));
    headingDigits.showNumber(c_HDG);
}

void APControlFace::airSpeedWasSet() {
    tasValue = c_TAS;
    tasDrag.rebase(toInt16(c_TAS));
    airSpeedDigits.showNumber(c_TAS);
}

void APControlFace::altitudeWasSet() {
    altValue = c_ALT / 100;
    altDrag.rebase(altValue);
    altitudeDigits.showNumber(altValue);
}

void APControlFace::holdHeading() {
    c_APTurnrate.publish(headingHoldRate(selectedHeading, c_ActualHDG));
}

void APControlFace::turnHeading(double heading) {
    c_HDG = intoCircle(heading);
    c_HDGChange = 1;
}

void APControlFace::turnAirSpeed(double knots) {
    c_TAS = knots < minimumTAS ? 0 : std::min(knots, maximumTAS);
}

void APControlFace::turnAltitude(double hundredsOfFeet) {
    c_ALT = std::clamp(hundredsOfFeet, 0.0, maximumALT) * 100;
}

void APControlFace::mouseDown(AutopilotKnob knob, double x) {
    if (!knobsAct())
        return;
    pressed = knob;
    if (knob == AutopilotKnob::heading)
        hdgDrag.press(x);
    else if (knob == AutopilotKnob::airSpeed)
        tasDrag.press(x);
    else if (knob == AutopilotKnob::altitude)
        altDrag.press(x);
}

void APControlFace::mouseMove(double x, MouseButton held) {
    if (!knobsAct())
        return;
    if (pressed == AutopilotKnob::heading && hdgDrag.active())
        dragHeading(x, held);
    else if (pressed == AutopilotKnob::airSpeed && tasDrag.active())
        dragAirSpeed(x, held);
    else if (pressed == AutopilotKnob::altitude && altDrag.active())
        dragAltitude(x, held);
}

void APControlFace::dragHeading(double x, MouseButton held) {
    const double delta = intoCircle(steps(hdgDrag, x, held == MouseButton::left ? 100 : 900));
    turnHeading(hdgDrag.base() + delta);
}

void APControlFace::dragAirSpeed(double x, MouseButton held) {
    if (held == MouseButton::left)
        tasRate = toInt16(steps(tasDrag, x, 100));
    else
        turnAirSpeed(tasDrag.base() + 5 * steps(tasDrag, x, 900));
}

void APControlFace::dragAltitude(double x, MouseButton held) {
    if (held == MouseButton::left)
        altRate = toInt16(steps(altDrag, x, 100));
    else
        turnAltitude(altDrag.base() + 5 * steps(altDrag, x, 900));
}

void APControlFace::mouseUp() {
    if (pressed == AutopilotKnob::heading) {
        hdgDrag.release(toInt16(c_HDG));
    } else if (pressed == AutopilotKnob::airSpeed) {
        tasRate = 0;
        tasDrag.release(toInt16(c_TAS));
    } else if (pressed == AutopilotKnob::altitude) {
        altRate = 0;
        altDrag.release(altValue);
    }
    pressed = AutopilotKnob::none;
}

void APControlFace::doubleClick(AutopilotKnob knob) {
    if (knob != AutopilotKnob::heading)
        return;
    c_HDG = c_ActualHDG;
    c_HDGChange = 1;
}

void APControlFace::stepHeading(int degrees) {
    if (knobsAct())
        turnHeading(toInt16(c_HDG) + degrees);
}

void APControlFace::stepTAS(int knots) {
    if (!knobsAct())
        return;
    const bool leavesStandstill = knots > 0 && tasValue < minimumTAS;
    turnAirSpeed(leavesStandstill ? std::max(tasValue + knots, minimumTAS) : tasValue + knots);
}

void APControlFace::stepALT(int hundredsOfFeet) {
    if (knobsAct())
        turnAltitude(altValue + hundredsOfFeet);
}

void APControlFace::Timer1() {
    if (!drives())
        return;
    if (tasRate != 0) {
        const double pushOff = tasValue < minimumTAS ? tasRate + 30 : 0;
        turnAirSpeed(tasValue + pushOff + tasRate);
    }
    if (altRate != 0)
        turnAltitude(altValue + altRate);
}

} // namespace tarnel
