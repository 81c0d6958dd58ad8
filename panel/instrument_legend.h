#pragma once

#include "exercises/question_cover.h"
#include "instruments/needle_role.h"
#include "panel/needle_sources.h"
#include "strings/string_table.h"

#include <string>
#include <vector>

namespace tarnel {

struct LegendPart {
    NeedleRole needle; ///< that it belongs to
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
