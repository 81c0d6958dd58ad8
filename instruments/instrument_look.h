#pragma once

#include "instruments/instrument_picture.h"

namespace tarnel {

/// The side of an instrument in twips.
constexpr double smallInstrument = 3855;
constexpr double largeInstrument = 6975;

/// Sizes the control, and moves and sizes the three knob areas with it.
void sizeInstrument(InstrumentPicture& picture, bool large);

/// Gives all parts the fonts, line widths, colours and visibility that a kind starts with. The
/// second needle, the triangle and the flags are shown later by what they have to say.
void dressInstrument(InstrumentPicture& picture, InstrumentKind kind, bool large);

} // namespace tarnel
