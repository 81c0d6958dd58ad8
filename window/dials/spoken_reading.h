#pragma once

#include "instruments/digit_readout.h"
#include "instruments/dme_control_face.h"
#include "instruments/user_control_1.h"
#include "panel/needle_sources.h"
#include "strings/string_table.h"

#include <optional>
#include <string>

namespace tarnel {

/// A station as it is spoken of.
struct SpokenStation {
    std::string name;
    bool received = false;
    bool operator==(const SpokenStation&) const = default;
};

/// The stations of an instrument's needles. One that is not known is passed over, and its needle
/// counts as received.
struct SpokenStations {
    std::optional<SpokenStation> first;
    std::optional<SpokenStation> second;
    bool operator==(const SpokenStations&) const = default;
};

/// What a needle follows, such as "VOR 1 MUN".
[[nodiscard]] std::optional<SpokenStation> spokenStation(const std::optional<NeedleSource>& source,
                                                         const UserControl2& simulation,
                                                         const StringTable& texts);

/// An instrument's reading in words, such as "heading 090, VOR 1 MUN, course 110, 2 dots right,
/// TO". Bearings are read from the card under the needle's tip. A deviation is told in half dots,
/// that of a localizer in tenths; up to a quarter of a dot it is centred.
[[nodiscard]] std::string spokenReading(const UserControl_1& instrument,
                                        const SpokenStations& stations, const StringTable& texts);

/// The spoken name of an instrument's kind; of a number that is no kind, that of the gyro.
[[nodiscard]] Text spokenKind(std::int16_t display);

/// What digits show, with a point after the first `pointAfter` of them (0 for none); in words if
/// they show dashes or nothing.
[[nodiscard]] std::string spokenDigits(const DigitReadout& digits, std::size_t pointAfter,
                                       const StringTable& texts);

/// Station, distance and speed of a DME in words.
[[nodiscard]] std::string spokenDme(const DMEControlFace& face,
                                    const std::optional<SpokenStation>& station,
                                    const StringTable& texts);

} // namespace tarnel
