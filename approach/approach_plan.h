#pragma once

#include "approach/approach_source.h"
#include "approach/chart_plane.h"
#include "approach/descent.h"
#include "approach/track_pen.h"

#include <optional>
#include <string>
#include <vector>

namespace tarnel {

/// A place on the way with its name and what tells it, one a line.
struct PlanFix {
    Point at;
    std::vector<std::string> lines;
    bool isFinal = false; ///< the final approach fix
};

/// A text that stands on the way, and the direction that is flown there, degrees.
struct PlanMark {
    Point at;
    double course = 0;
    std::string text;
    std::string altitude; ///< said behind the text where the leg has room for it; may be empty
    double leg = 0;       ///< of a straight leg with `at` in its middle, its length
};

/// A radial that tells a place on the way.
struct PlanRadial {
    Slot station = Slot::vor1;
    Point from; ///< the station
    Point to;
    double radial = 0; ///< degrees
    std::string text;
};

/// The way of an approach on a sheet, in twips.
struct ApproachPlan {
    std::vector<Point> track;  ///< from the initial fix to the threshold
    std::vector<Point> missed; ///< from the threshold on
    std::vector<Point> hold;   ///< empty where there is none
    std::vector<PlanFix> fixes;
    std::vector<PlanMark> marks;
    std::vector<PlanRadial> radials;
    std::optional<double> leadRadial; ///< on which the turn from an arc begins, degrees
    Point threshold;
    Point farEnd;
    double joinDme = 0;   ///< where the final course is reached
    int joinAltitude = 0; ///< of the leg that leads there
    Descent descent;
};

/// Draws the way of `source` over the stations of `plane`: turns as they are flown at 120 knots
/// without wind, three degrees a second. Throws PlanError for a way that can't be flown.
[[nodiscard]] ApproachPlan planOf(const ApproachSource& source, const AuthoredChart& chart,
                                  const ChartPlane& plane);

/// "8.0"
[[nodiscard]] std::string oneDecimal(double value);

} // namespace tarnel
