#pragma once

#include "instruments/digit_readout.h"
#include "instruments/dme_control_face.h"
#include "instruments/user_control_1.h"
#include "strings/string_table.h"

#include <string>

namespace tarnel {

/// An instrument's reading in words, such as "heading 090, course 110, 2 dots right, TO". Bearings
/// are read from the card under the needle's tip.
[[nodiscard]] std::string spokenReading(const UserControl_1& instrument, const StringTable& texts);

/// The spoken name of an instrument's kind; of a number that is no kind, that of the gyro.
[[nodiscard]] Text spokenKind(std::int16_t display);

/// What digits show, with a point after the first `pointAfter` of them (0 for none); in words if
/// they show dashes or nothing.
[[nodiscard]] std::string spokenDigits(const DigitReadout& digits, std::size_t pointAfter,
                                       const StringTable& texts);

/// Distance and speed of a DME in words.
[[nodiscard]] std::string spokenDme(const DMEControlFace& face, const StringTable& texts);

} // namespace tarnel
