#include "approach/plan_framing.h"

#include "core/rounding.h"

#include <algorithm>
#include <limits>

namespace tarnel {

namespace {

constexpr std::int16_t trialScale = 1000; ///< twips per NM
constexpr double nearStation = 7;         ///< NM from the runway or the initial fix
constexpr double nearMissed = 11.5;       ///< NM from the runway, of the missed approach's station
constexpr double behindRunway = 2;        ///< NM of the missed approach

struct Extent {
    double left = std::numeric_limits<double>::infinity();
    double top = left;
    double right = -left;
    double bottom = -left;

    void take(Point at) {
        left = std::min(left, at.x);
        right = std::max(right, at.x);
        top = std::min(top, at.y);
        bottom = std::max(bottom, at.y);
    }
};

/// What has to be seen, about the centre of the session's chart.
Extent extentOf(const ApproachPlan& plan, const ChartPlane& plane) {
    Extent extent;
    for (const std::vector<Point>* way : {&plan.track, &plan.hold})
        for (const Point at : *way)
            extent.take(at);
    extent.take(plan.farEnd + onCourse(plane.finalCourse(), plane.twips(behindRunway)));
    for (std::size_t slot = 0; slot < slotCount; ++slot) {
        const Point at = plane.station(static_cast<Slot>(slot));
        const double away =
            std::min(lengthOf(at - plan.threshold), lengthOf(at - plan.track.front()));
        if (plane.miles(away) < nearStation)
            extent.take(at);
    }
    for (const PlanRadial& radial : plan.radials)
        extent.take(radial.to);
    if (plane.miles(lengthOf(plan.missed.back() - plan.threshold)) < nearMissed)
        for (const Point at : plan.missed)
            extent.take(at);
    return extent;
}

} // namespace

PlanFraming framePlan(const ApproachSource& source, const AuthoredChart& chart,
                      const SessionFile& session, const PlanWindow& window) {
    const ChartPlane trial(session, trialScale, {0, 0});
    const Extent extent = extentOf(planOf(source, chart, trial), trial);
    const double width = extent.right - extent.left;
    const double height = extent.bottom - extent.top;
    const double factor =
        std::min({(window.width - 2 * window.margin) / width,
                  (window.height - 2 * window.margin) / height, window.largest / trialScale});
    const auto centred = [factor](double size, double from, double to) {
        return toInt16(size / 2 - factor * (from + to) / 2);
    };
    return {toInt16(trialScale * factor),
            {centred(window.width, extent.left, extent.right),
             centred(window.height, extent.top, extent.bottom)}};
}

} // namespace tarnel
