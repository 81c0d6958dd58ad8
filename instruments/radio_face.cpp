#include "instruments/radio_face.h"

#include "core/rounding.h"

#include <algorithm>
#include <cmath>

namespace tarnel {

namespace {

constexpr double clickSlack = 60;    ///< twips that a click may move
constexpr double twipsPerSlot = 700; ///< of a drag

} // namespace

void FacePress::move(Point at) {
    moved = moved || std::abs(at.x - start.x) > clickSlack || std::abs(at.y - start.y) > clickSlack;
}

bool FacePress::release() {
    const bool clicked = held && !moved;
    held = false;
    return clicked;
}

bool FacePress::upright(Point at) const {
    return std::abs(at.y - start.y) > std::abs(at.x - start.x);
}

RadioFace::RadioFace(std::span<const std::size_t> places, std::int16_t slots)
    : frequency(surface, places) {
    c_NumberOfFreqs.publish(slots);
}

std::string_view RadioFace::slotText(std::int32_t slot) const {
    switch (slot) {
    case 0:
        return c_Freq1.get();
    case 1:
        return c_Freq2.get();
    case 2:
        return c_Freq3.get();
    case 3:
        return unset;
    default:
        return {};
    }
}

void RadioFace::selectSlot() {
    dialIndex = c_SetFreq;
    showDialSlot();
}

void RadioFace::stepUp() {
    turnDial(dialIndex + 1 > c_NumberOfFreqs - 1 ? 0 : dialIndex + 1);
}

void RadioFace::stepDown() {
    turnDial(dialIndex - 1 < 0 ? std::max(c_NumberOfFreqs - 1, 0) : dialIndex - 1);
}

void RadioFace::turnDial(std::int32_t slot) {
    if (knobActs())
        c_SetFreq = slot;
}

void RadioFace::mouseDown(Point at) {
    press.press(at);
    dragStartX = toInt16(at.x);
}

void RadioFace::mouseMove(Point at) {
    if (!press.active())
        return;
    press.move(at);
    if (press.dragged() && knobActs())
        dragTo(at.x);
}

void RadioFace::dragTo(double x) {
    const std::int32_t step = toInt32(std::floor((x - dragStartX) / twipsPerSlot));
    if (step > dragStep)
        stepUp();
    if (step < dragStep)
        stepDown();
    dragStep = step;
}

void RadioFace::mouseLost() {
    static_cast<void>(press.release());
}

void RadioFace::mouseUp() {
    if (press.release())
        stepUp();
}

} // namespace tarnel
