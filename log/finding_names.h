#pragma once

#include "debrief/debrief.h"

#include <optional>
#include <string_view>

namespace tarnel {

/// What a kind of finding is called in a log: its name in the table of findings, so that logs
/// outlast a new order of that table.
[[nodiscard]] std::string_view nameOfFinding(FindingKind kind);
/// Nothing for a name that this program does not know.
[[nodiscard]] std::optional<FindingKind> findingOf(std::string_view name);

} // namespace tarnel
