#pragma once

#include "instruments/instrument_picture.h"
#include "instruments/needle_logic.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace tarnel {

/// What an instrument's background depends on besides its kind.
struct BackgroundChoice {
    bool large = false;
    std::int16_t navSelect = 1;             ///< receiver 1 or 2; anything else stands for 2
    std::int16_t adfCardSelect = fixedCard; ///< anything else stands for slaved
};

/// The file name of a kind's background. The VOR indicator's is that of its receiver until a flag
/// asks for another.
[[nodiscard]] std::string backgroundName(InstrumentKind kind, const BackgroundChoice& choice);

/// The picture number of a flag: 1 TO, 2 FROM, 3 localizer or none.
[[nodiscard]] std::int16_t flagKindOf(FlagState flag);

/// The VOR indicator's background for a flag's picture number; empty for a number outside 1 to 3 or
/// a receiver other than 1 and 2.
[[nodiscard]] std::string vorBackgroundName(std::int16_t flagKind, const BackgroundChoice& choice);

/// A file in a folder that may end with a separator or not.
[[nodiscard]] std::string pathIn(std::string_view folder, std::string_view file);

} // namespace tarnel
