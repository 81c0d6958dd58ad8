#include "instruments/dme_control_face.h"

#include <optional>

namespace tarnel {

namespace {

/// The position that a drag from `area` has reached `way` twips past that area's edge. Nothing for
/// a drag from R2, which only takes clicks.
std::optional<DmeMode> positionAt(DmeMode area, double way) {
    if (area == DmeMode::freq) {
        if (way < 230)
            return DmeMode::freq;
        return way < 450 ? DmeMode::r1 : DmeMode::r2;
    }
    if (area == DmeMode::r1) {
        if (way < 0)
            return DmeMode::freq;
        return way < 210 ? DmeMode::r1 : DmeMode::r2;
    }
    return std::nullopt;
}

} // namespace

void DMEControlFace::ShowDistance(std::string_view text) {
    if (text == "--.-")
        distance.showDashes();
    else
        distance.show(text);
}

void DMEControlFace::ShowSpeed(std::string_view text) {
    speed.show(text);
}

void DMEControlFace::BlankDisplay() {
    BlankFrequency();
    distance.blank();
    speed.blank();
}

/// Both readouts: without a distance there is no speed either.
void DMEControlFace::showReading() {
    if (c_DMEnm > noSignal)
        distance.showNumber(wholeMiles() ? c_DMEnm / 10.0 : c_DMEnm.get());
    else
        distance.showDashes();
    showSpeed();
}

void DMEControlFace::showSpeed() {
    if (c_DMEnm > noSignal)
        speed.showNumber(c_DMEkt);
    else
        speed.showDashes();
}

void DMEControlFace::follow(DmeMode receiver, std::int16_t slot) {
    if (selected != receiver)
        return;
    c_SetFreq.publish(slot);
    ShowFrequency(slotText(slot));
}

void DMEControlFace::selectMode(DmeMode next) {
    surface.set(selected, next);
    if (next == DmeMode::freq)
        c_SetFreq = dialIndex;
}

void DMEControlFace::selectorDown(DmeMode area, Point at) {
    pressedPosition = area;
    selectorPress.press(at);
}

void DMEControlFace::selectorMove(Point at) {
    if (!selectorPress.active())
        return;
    selectorPress.move(at);
    const auto position = positionAt(pressedPosition, selectorPress.upright(at) ? at.y : at.x);
    if (position && *position != selected)
        selectMode(*position);
}

void DMEControlFace::selectorLost() {
    static_cast<void>(selectorPress.release());
}

void DMEControlFace::selectorUp() {
    if (selectorPress.release())
        selectMode(pressedPosition);
}

} // namespace tarnel
