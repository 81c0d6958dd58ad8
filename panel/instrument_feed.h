#pragma once

#include "engine/user_control_2.h"
#include "instruments/radio_face.h"
#include "panel/instrument_position.h"
#include "strings/string_table.h"

#include <cstdint>

namespace tarnel {

/// Where the needles come from.
struct FeedSources {
    UserControl2& simulation;
    const NAVControlFace& nav1;
    const NAVControlFace& nav2;
    const ADFControlFace& adfReceiver;
    const StringTable& texts;
    std::int16_t locCourse; ///< degrees, from the localizer along its feather
};

/// Writes radials, heading and courses to the instrument of a position, as its type wants them. The
/// instrument redraws only what changed.
void feedInstrument(const PositionLinks& links, const FeedSources& sources);

} // namespace tarnel
