#pragma once

#include "strings/string_table.h"

#include <string>

namespace tarnel {

class ScriptedFlight;

/// What was found in a flight beside the task of its plan, a finding a line, worst first: its time,
/// the verdict and the finding. Nothing without a task. Throws PlanError if its
/// session can't be read.
[[nodiscard]] std::string flightDebrief(ScriptedFlight& flight, const StringTable& texts);

} // namespace tarnel
