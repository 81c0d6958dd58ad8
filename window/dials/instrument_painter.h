#pragma once

#include "instruments/instrument_picture.h"
#include "window/widgets/kept_painting.h"
#include "window/widgets/numeral_shapes.h"
#include "window/widgets/picture_store.h"

class QPainter;

namespace tarnel {

/// How the numerals of a card are painted: as pixels that turn, or as text, of which a drawing
/// takes the hundredth part. Text has no edge, but is painted in the edge's colour first.
enum class Numerals { pixels, text };

/// Paints an instrument into a square: its background, card, needles and flags, not its knobs.
class InstrumentPainter {
  public:
    explicit InstrumentPainter(PictureStore& store, Numerals painted = Numerals::pixels)
        : pictures(store), numeralsAs(painted) {}

    void paint(QPainter& painter, const InstrumentPicture& picture, double side);

  private:
    // What parts that seldom change depend on, besides their place.
    struct Ground {
        std::string file; ///< of the background
        decltype(InstrumentPicture::Line1) ticks;
        bool operator==(const Ground&) const = default;
    };
    using Dots = decltype(InstrumentPicture::Shape2);
    struct Hub {
        bool operator==(const Hub&) const = default;
    };

    PictureStore& pictures;
    Numerals numeralsAs;
    NumeralShapes numerals;
    KeptPainting<Ground> ground;
    KeptPainting<Dots> dots;
    KeptPainting<Hub> hub;
};

} // namespace tarnel
