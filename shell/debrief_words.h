#pragma once

#include "debrief/debrief.h"
#include "strings/string_table.h"

#include <string>

namespace tarnel {

/// A finding as a sentence.
[[nodiscard]] std::string sentenceOf(const StringTable& texts, const Finding& finding);
/// Its value with its unit.
[[nodiscard]] std::string valueOf(const StringTable& texts, const Finding& finding);
/// What became of it, in a word.
[[nodiscard]] std::string verdictOf(const StringTable& texts, const Finding& finding);
[[nodiscard]] std::string nameOf(const StringTable& texts, PhaseKind phase);
[[nodiscard]] std::string nameOf(const StringTable& texts, SeriesKind series);
[[nodiscard]] std::string nameOf(const StringTable& texts, FindingUnit unit);

} // namespace tarnel
