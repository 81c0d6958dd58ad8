#pragma once

#include "strings/string_table.h"

#include <string>

namespace tarnel {

/// Flies a plan and draws what the trainer shows at its end: NAME-left.svg and NAME-right.svg, the
/// dials, and NAME-chart.svg, for a plan of the name NAME.toml. Throws PlanError and OutputError.
void drawFigures(const std::string& plan, const std::string& folder, const StringTable& texts,
                 const std::string& applicationFolder);

} // namespace tarnel
