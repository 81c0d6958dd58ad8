#pragma once

#include "core/recording.h"
#include "core/stations.h"

#include <cstdint>

namespace tarnel {

/// Where a chart is centred and how large it is, so that it shows a holding.
struct HoldingChart {
    SplitPosition fix;
    std::int16_t scale = 0; ///< twips per NM
};

/// The length of a holding in NM, flown at `knots` without wind: a minute's leg and the turns at
/// its ends, three degrees a second.
[[nodiscard]] double holdingLength(double knots);

/// The north-up chart of `size` twips for the holding that the first `samples` of `flight` fly, at
/// least one: the pattern takes a third of its side. The fix is the station that the flight comes
/// nearest to.
[[nodiscard]] HoldingChart holdingChart(const Recording& flight, int samples,
                                        const Stations& stations, double size);

} // namespace tarnel
