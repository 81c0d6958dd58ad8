#include "instruments/digit_readout.h"

#include "core/number_text.h"
#include "core/rounding.h"

#include <cmath>

namespace tarnel {

namespace {

std::int16_t digitPicture(char character) {
    if (character >= '0' && character <= '9')
        return static_cast<std::int16_t>(character - 47);
    return character == '-' ? DigitReadout::dashPicture : DigitReadout::blankPicture;
}

} // namespace

DigitReadout::DigitReadout(DrawingSurface& owner, std::span<const std::size_t> places)
    : surface(owner), characters(places), shown(places.size(), blankPicture), dark(shown) {}

void DigitReadout::show(std::string_view text) {
    for (std::size_t i = 0; i < shown.size(); ++i) {
        const std::size_t place = characters[i];
        surface.set(shown[i], place < text.size() ? digitPicture(text[place]) : blankPicture);
    }
}

void DigitReadout::showNumber(double value) {
    show(zeroPadded(toInt32(std::floor(value)), 3));
}

void DigitReadout::fill(std::int16_t picture) {
    for (std::int16_t& digit : shown)
        surface.set(digit, picture);
}

} // namespace tarnel
