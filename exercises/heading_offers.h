#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace tarnel {

/// Headings that a row offers: `base` plus an offset each, in degrees.
struct HeadingOffers {
    double base = 0;
    double right = 0; ///< the heading to pick; a full turn more or less makes no difference
    std::vector<std::int16_t> offsets;

    /// The captions: three digits, north as "360". Throws the overflow error if `base` is no
    /// heading but a number past 32 bits.
    [[nodiscard]] std::vector<std::string> captions() const;
    [[nodiscard]] bool isRight(int option) const;
};

/// A heading's number as its caption: 360 in place of 0, zeros in front to three digits.
[[nodiscard]] std::string headingCaption(double heading);

} // namespace tarnel
