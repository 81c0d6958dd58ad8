#pragma once

#include "shell/form_1.h"

#include <string>
#include <vector>

namespace tarnel {

/// Which needle a part of a legend belongs to.
enum class LegendNeedle { course, first, second };

struct LegendPart {
    LegendNeedle needle;
    std::string text;
    std::string shortText = text; ///< where there is little room
    bool operator==(const LegendPart&) const = default;
};

/// What stands above an instrument: the receivers of its needles, and the course that is set.
[[nodiscard]] std::vector<LegendPart> instrumentLegend(const StringTable& texts,
                                                       const InstrumentPosition& position,
                                                       std::int16_t adfSelection);

} // namespace tarnel
