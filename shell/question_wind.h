#pragma once

#include "core/aircraft.h"
#include "strings/string_table.h"

#include <cstdint>
#include <string>

namespace tarnel {

/// The wind in degrees and knots, and the airspeed, that a question is flown with: who is to say
/// how needles move has to know them. Empty in still air.
[[nodiscard]] std::string questionWind(const StringTable& texts, const Wind& wind,
                                       std::int16_t tas);

} // namespace tarnel
