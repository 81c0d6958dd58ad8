// The caps of the knobs: only the pointer turns, the light on the cap stays.
#pragma once

#include <QImage>

namespace tarnel {

enum class KnobLook { Resting, Hovered };

QImage paintKnob(int side, KnobLook look);

// A ring with a smaller cap on it, for whole and broken frequencies.
QImage paintDoubleKnob(int side, KnobLook look);

// The pointer alone, pointing up, sized for the cap of paintKnob.
QImage paintPointer(int side);

} // namespace tarnel
