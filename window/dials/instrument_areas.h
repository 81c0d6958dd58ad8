#pragma once

#include "instruments/instrument_mouse.h"
#include "instruments/instrument_picture.h"

#include <QPointF>
#include <QRectF>

#include <vector>

namespace tarnel {

/// Where the things to turn and click are on an instrument, and the way of the keyboard through
/// them. Places are pixels of a square of `side`.
class InstrumentAreas {
  public:
    explicit InstrumentAreas(const InstrumentPicture& shown) : picture(shown) {}

    [[nodiscard]] static QPointF knobCentre(InstrumentArea knob, double side);
    [[nodiscard]] static double knobRadius(double side);
    /// The two keys of the selector in the upper right corner.
    [[nodiscard]] static QRectF selectorKeys(double side);

    [[nodiscard]] const KnobArea& knob(InstrumentArea area) const;
    [[nodiscard]] bool visible(InstrumentArea area) const { return knob(area).visible; }
    [[nodiscard]] bool usable(InstrumentArea area) const;
    /// The middle of an area in twips.
    [[nodiscard]] Point middle(InstrumentArea area) const;

    /// The usable area after or before another in the order of the keyboard; `none` past the ends,
    /// and from `none` the first or last.
    [[nodiscard]] InstrumentArea next(InstrumentArea from, bool forward) const;

  private:
    const InstrumentPicture& picture;
};

} // namespace tarnel
