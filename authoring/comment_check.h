#pragma once

#include "authoring/findings.h"
#include "authoring/pilot.h"
#include "core/recording.h"

#include <optional>
#include <vector>

namespace tarnel {

/// A flight with what is said of it.
struct CommentedFlight {
    const AuthoredChart& chart;
    const std::vector<FlightRow>& rows; ///< one a tick
    const std::vector<Sample>& samples; ///< as recorded, the first one is sample 1
    const std::vector<SaidComment>& said;
    /// The station that is meant where a comment names none; nothing if it may be any.
    std::optional<Slot> station = {};
};

/// Proves the comments of a flight: there in both languages, with the same numbers, seen at all,
/// with sums that add up, and true of the sample at which they begin. `lines` are those of the
/// source, one a comment; the last one stands for those behind it.
void checkComments(const CommentedFlight& flight, const std::vector<int>& lines,
                   SourceFindings& findings);

} // namespace tarnel
