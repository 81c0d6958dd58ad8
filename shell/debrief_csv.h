#pragma once

#include "shell/debrief_desk.h"
#include "strings/string_table.h"

#include <string>

namespace tarnel {

/// What is plotted of the flight that is looked at, and of those beside it, as a table: a row a
/// sample, semicolons between the columns, points in numbers, units in the first row. Empty where
/// nothing is plotted.
[[nodiscard]] std::string debriefCsv(const DebriefDesk& desk, const StringTable& texts);

} // namespace tarnel
