#include "window/dials/instrument_areas.h"

#include "look/look.h"

#include <algorithm>
#include <array>

namespace tarnel {

namespace {

constexpr std::array keyboardOrder{InstrumentArea::obsKnob, InstrumentArea::headingBugKnob,
                                   InstrumentArea::selector};

} // namespace

QPointF InstrumentAreas::knobCentre(InstrumentArea knob, double side) {
    const double inset = side * look::bezel::knobInset;
    return {knob == InstrumentArea::obsKnob ? inset : side - inset, side - inset};
}

double InstrumentAreas::knobRadius(double side) {
    return side * look::bezel::knobRadius;
}

QRectF InstrumentAreas::selectorKeys(double side) {
    using namespace look::bezel;
    return {(1 - keyInset - selectorWidth) * side, keyInset * side, selectorWidth * side,
            keyHeight * side};
}

const KnobArea& InstrumentAreas::knob(InstrumentArea area) const {
    static constexpr KnobArea nothing;
    switch (area) {
    case InstrumentArea::obsKnob:
        return picture.Image4;
    case InstrumentArea::headingBugKnob:
        return picture.Image2;
    case InstrumentArea::selector:
        return picture.Image3;
    default:
        return nothing;
    }
}

bool InstrumentAreas::usable(InstrumentArea area) const {
    return knob(area).visible && knob(area).enabled;
}

Point InstrumentAreas::middle(InstrumentArea area) const {
    const Area& place = knob(area).area;
    return {place.left + place.width / 2, place.top + place.height / 2};
}

InstrumentArea InstrumentAreas::next(InstrumentArea from, bool forward) const {
    std::array order = keyboardOrder;
    if (!forward)
        std::reverse(order.begin(), order.end());
    const auto at = std::find(order.begin(), order.end(), from);
    const auto found = std::find_if(at == order.end() ? order.begin() : at + 1, order.end(),
                                    [this](InstrumentArea area) { return usable(area); });
    return found == order.end() ? InstrumentArea::none : *found;
}

} // namespace tarnel
