#pragma once

#include "paper/name_labels.h"
#include "tools/approach/plan_lettering.h"

#include <QColor>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

class QPainter;

namespace tarnel {

/// A text on the plan that speaks of a place.
struct PlanLabel {
    NameLabel place;
    QStringList lines; ///< the first one bold
    QString morse;     ///< of "." and "-"; empty for what has no identifier
    QColor colour;
    bool isStation = false;
};

/// The place of a station on the window's edge if it lies beyond, the direction kept as it is seen
/// from the threshold; nothing for a station that is seen.
[[nodiscard]] std::optional<Spot> edgeTowards(const ApproachSheet& sheet, const ChartFrame& frame,
                                              const Box& window, Slot slot);

/// The boxes of the stations and the names of the fixes, each at its place. `symbols` is the frame
/// that the symbols are painted in.
[[nodiscard]] std::vector<PlanLabel> planLabels(const ApproachSheet& sheet,
                                                const ChartFrame& symbols, const Box& window,
                                                const PlanObstacles& obstacles);

void paintLabel(QPainter& painter, const PlanLabel& label);

} // namespace tarnel
