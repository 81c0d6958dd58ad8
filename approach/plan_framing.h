#pragma once

#include "approach/approach_plan.h"
#include "approach/approach_source.h"

#include <cstdint>

namespace tarnel {

/// The window of a sheet that a plan has to fit into, twips from its upper left corner.
struct PlanWindow {
    double width = 0;
    double height = 0;
    double margin = 0;  ///< for lettering
    double largest = 0; ///< twips per NM
};

/// How a plan lies in its window: scale, and where the centre of the session's chart is.
struct PlanFraming {
    std::int16_t twipsPerMile = 0;
    ChartPoint centre;
};

/// The largest plan that shows the whole way to the runway, and the stations near it.
[[nodiscard]] PlanFraming framePlan(const ApproachSource& source, const AuthoredChart& chart,
                                    const SessionFile& session, const PlanWindow& window);

} // namespace tarnel
