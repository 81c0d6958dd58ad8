#pragma once

#include "core/stations.h"
#include "strings/text.h"

namespace tarnel {

/// What a needle that follows a station is called.
[[nodiscard]] constexpr Text signalName(Slot slot) {
    constexpr Text names[] = {Text::signalVor1, Text::signalVor2, Text::signalNdb1,
                              Text::signalNdb2, Text::signalLoc1};
    return names[static_cast<std::size_t>(slot)];
}

} // namespace tarnel
