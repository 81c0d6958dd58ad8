#pragma once

#include "core/drawing_surface.h"
#include "core/instrument_kind.h"
#include "instruments/needle_role.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace tarnel {

/// The values of `c_ADFCardselect`: a card that is turned by hand, or one that turns with the
/// heading.
constexpr std::int16_t fixedCard = 1;
constexpr std::int16_t slavedCard = 2;

/// An area over the background that takes the mouse.
struct KnobArea {
    Area area;
    bool visible = false;
    bool enabled = true; ///< false while the knobs are locked
    bool operator==(const KnobArea&) const = default;
};

/// Everything that an instrument shows, in twips of the control.
struct InstrumentPicture {
    DrawingSurface surface;
    double size = 3855; ///< width and height
    InstrumentKind kind = InstrumentKind::adf;
    NeedleRole secondNeedle = NeedleRole::none; ///< of `Line7to12`; none while it is put away
    bool flagged = false;                       ///< a deviation can't be read: its flag is out

    Picture Image1;  ///< the background
    KnobArea Image2; ///< heading bug knob
    KnobArea Image3; ///< selector
    KnobArea Image4; ///< OBS knob; on an ADF it turns the fixed card

    std::array<Line, 72> Line1;     ///< card ticks: 36 long ones, then 36 short ones
    std::array<Label, 12> Label1;   ///< card numerals
    std::array<Line, 4> Line3to6;   ///< first needle, or the head of the HSI's course arrow
    std::array<Line, 6> Line7to12;  ///< second needle
    Line Line13;                    ///< deviation bar
    Line Line14;                    ///< tail of the HSI's course arrow
    std::array<Line, 3> Line15;     ///< TO/FROM triangle of the HSI
    std::array<Line, 3> Line16;     ///< the aircraft in the middle
    std::array<Line, 7> Line17to23; ///< heading bug
    Line Line24;                    ///< lubber line of the HSI
    std::array<Round, 11> Shape2;   ///< deviation dots; the first is the centre
    Label Label2_3;                 ///< what the second needle points to
    Label Label2_4;                 ///< flag of the VOR indicator
    Label Text1;                    ///< "OFF" flag of the HSI
};

} // namespace tarnel
