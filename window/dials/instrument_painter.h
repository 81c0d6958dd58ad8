#pragma once

#include "instruments/instrument_picture.h"
#include "window/widgets/numeral_shapes.h"
#include "window/widgets/picture_store.h"

class QPainter;

namespace tarnel {

/// Paints an instrument into a square: its background, card, needles and flags, not its knobs.
class InstrumentPainter {
  public:
    explicit InstrumentPainter(PictureStore& store) : pictures(store) {}

    void paint(QPainter& painter, const InstrumentPicture& picture, double side);

  private:
    PictureStore& pictures;
    NumeralShapes numerals;
};

} // namespace tarnel
