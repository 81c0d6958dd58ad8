#include "instruments/digit_readout.h"

#include "core/number_text.h"
#include "core/rounding.h"

#include <cmath>

namespace tarnel {

namespace {

/// Of a digit, "-" or " ".
std::int16_t pictureOf(char character) {
    if (character == '-')
        return DigitReadout::dashPicture;
    return character == ' ' ? DigitReadout::blankPicture
                            : static_cast<std::int16_t>(character - 47);
}

} // namespace

DigitReadout::DigitReadout(DrawingSurface& owner, std::span<const std::size_t> places)
    : surface(owner),
      characters(places),
      written(places.size(), ' '),
      shown(places.size(), blankPicture),
      dark(shown) {}

void DigitReadout::put(std::size_t place, char character) {
    const bool seen = (character >= '0' && character <= '9') || character == '-';
    written[place] = seen ? character : ' ';
    surface.set(shown[place], pictureOf(written[place]));
}

void DigitReadout::show(std::string_view text) {
    for (std::size_t i = 0; i < shown.size(); ++i) {
        const std::size_t place = characters[i];
        put(i, place < text.size() ? text[place] : ' ');
    }
}

void DigitReadout::showNumber(double value) {
    show(zeroPadded(toInt32(std::floor(value)), 3));
}

void DigitReadout::fill(char character) {
    for (std::size_t i = 0; i < shown.size(); ++i)
        put(i, character);
}

} // namespace tarnel
