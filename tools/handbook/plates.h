#pragma once

#include "authoring/local_text.h"

#include <string>

namespace tarnel {

/// Flies each situation of a course and draws what a plate of the handbook shows of it. A course
/// NAME.toml gives NAME-01-left.svg and NAME-01-right.svg, the dials, or NAME-01-asked.svg where
/// the chart is asked, NAME-01-flown.svg, the chart with the solution, and so on, and
/// NAME.plates.json: the name of each situation with its question and its solution in words. Throws
/// PlanError and OutputError.
void drawPlates(const std::string& source, const std::string& folder, Language language,
                const std::string& applicationFolder);

} // namespace tarnel
