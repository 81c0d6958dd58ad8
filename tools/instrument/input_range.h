#pragma once

#include "flights/range.h"

#include <string_view>

namespace tarnel {

/// The numbers that the bench offers for an input of an instrument, by the property's name.
[[nodiscard]] Range<double> inputRange(std::string_view property);

/// True for a property by which the instrument tells that one of its knobs was turned.
[[nodiscard]] bool isKnobFlag(std::string_view property);

} // namespace tarnel
