#pragma once

#include "flights/flight_plan.h"

#include <optional>
#include <string>
#include <string_view>

namespace tarnel {

/// Reads the TOML text of a plan. `file` names it in messages, and its folder is where the plan's
/// chart is looked for. Throws PlanError for the first mistake, unknown keys among them.
[[nodiscard]] FlightPlan readPlan(std::string_view text, const std::string& file);

/// Reads the plan at `file`. Throws PlanError also if it can't be read.
[[nodiscard]] FlightPlan readPlanFile(const std::string& file);

/// "direction/speed" within the limits of plans, such as "270/15"; nothing for another text.
[[nodiscard]] std::optional<Wind> windFrom(std::string_view text);

} // namespace tarnel
