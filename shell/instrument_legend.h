#pragma once

#include "shell/needle_sources.h"
#include "shell/question_cover.h"
#include "strings/string_table.h"

#include <string>
#include <vector>

namespace tarnel {

/// Which needle a part of a legend belongs to: the first or second pointer, the VOR indicator's
/// bar, the HSI's course arrow or its overlay needle; or none.
enum class LegendNeedle { none, first, second, bar, arrow, overlay };

struct LegendPart {
    LegendNeedle needle;
    std::string text;
    std::string shortText = text; ///< where there is little room
    bool operator==(const LegendPart&) const = default;
};

/// What stands above an instrument: what its needles follow, and the course that is set, as far as
/// an open question does not cover it.
[[nodiscard]] std::vector<LegendPart> instrumentLegend(const StringTable& texts,
                                                       const InstrumentPosition& position,
                                                       const FeedSources& sources,
                                                       const QuestionCover& cover);

} // namespace tarnel
