// The caps of the knobs: only the pointer turns, the light on the cap stays.
#pragma once

#include <QImage>

namespace tarnel {

// The rim of a cap as a fraction of half the picture; the rest is for the shadow.
inline constexpr double knobRimRadius = 0.75;

// The rim of the inner cap of a double knob as a fraction of the outer rim.
inline constexpr double innerCapShare = 0.56;

enum class KnobLook { Resting, Hovered };

QImage paintKnob(int side, KnobLook look);

// A ring with a smaller cap on it, for whole and broken frequencies.
QImage paintDoubleKnob(int side, KnobLook look);

// The pointer alone, pointing up, sized for the cap of paintKnob.
QImage paintPointer(int side);

} // namespace tarnel
