#pragma once

#include "debrief/debrief.h"
#include "strings/string_table.h"

#include <string>

namespace tarnel {

/// A finding in one sentence, without a full stop: "Inbound leg 48 s, should be 60 s ± 10".
[[nodiscard]] std::string findingText(const Finding& finding, const StringTable& texts);

/// The verdict on it in a word or two, "too short"; empty where it is open.
[[nodiscard]] std::string verdictText(const Finding& finding, const StringTable& texts);

/// A value with its unit, "0.35 NM". A correction is a size and a side.
[[nodiscard]] std::string valueText(double value, FindingUnit unit, const StringTable& texts);

/// The sign of a unit; empty where it has none.
[[nodiscard]] std::string unitText(FindingUnit unit, const StringTable& texts);

[[nodiscard]] Text nameOf(PhaseKind phase);
[[nodiscard]] Text nameOf(SeriesKind series);

} // namespace tarnel
