#pragma once

#include "paper/shapes.h"
#include "tools/approach/approach_sheet.h"
#include "window/chart/chart_frame.h"

#include <QString>

#include <vector>

class QPainter;

namespace tarnel {

/// A text beside a line, parallel to it and never upside down.
struct LetteringOnLine {
    Spot on;
    double course = 0; ///< of the line, degrees
    double turn = 0;   ///< of the text, degrees clockwise
    Box box;           ///< about `on`, before it is turned
    QString words;
    bool isFlown = false; ///< on the way, with an arrow; else on a radial

    /// The upright box around it.
    [[nodiscard]] Box area() const;
    /// Whether a line runs through it.
    [[nodiscard]] bool isHitBy(const Stroke& line) const;
};

/// What the lettering of a plan keeps clear of, tenths of a millimetre from the window's corner.
struct PlanObstacles {
    std::vector<Box> areas;
    std::vector<Stroke> lines;
};

/// The courses along the way and the names of the radials, each where it hits the least.
[[nodiscard]] std::vector<LetteringOnLine> planLettering(const ApproachPlan& plan,
                                                         const ChartFrame& frame, const Box& window,
                                                         const PlanObstacles& obstacles);

void paintLettering(QPainter& painter, const LetteringOnLine& lettering);

} // namespace tarnel
