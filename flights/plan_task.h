#pragma once

#include "debrief/debrief.h"
#include "flights/range.h"

#include <optional>
#include <string>

namespace tarnel {

class PlanTable;

namespace plan_limits {
constexpr Range<double> cut{5, 120};        ///< degrees between heading and course
constexpr Range<double> legMinutes{0.5, 3}; ///< of a holding
constexpr Range<double> arcDistance{2, 60}; ///< NM by DME
} // namespace plan_limits

/// What a plan says that its flight has to be.
struct PlannedTask {
    Task task;
    Strictness limits = Strictness::standard;
    std::optional<std::string> session; ///< path of the flight of a `ReferenceTask`
    int sessionLine = 0;
};

/// Reads the table [task]; nothing if the plan has none. Throws PlanError.
[[nodiscard]] std::optional<PlannedTask> readTask(PlanTable& root, const std::string& file);

/// The task itself; that of a reference has its samples. Throws PlanError if its session can't be
/// read. `file` is the plan.
[[nodiscard]] Task wholeTask(const PlannedTask& planned, const std::string& file);

} // namespace tarnel
