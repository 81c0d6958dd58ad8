#pragma once

#include "navdata/nav_data.h"
#include "persistence/file_problem.h"
#include "strings/string_table.h"

#include <string>

namespace tarnel {

/// Where a chart, a session or a track is wrong, and what should stand there.
[[nodiscard]] std::string problemText(const StringTable& texts, const FileProblem& problem);
/// The same of navigation data.
[[nodiscard]] std::string problemText(const StringTable& texts, const NavProblem& problem);

} // namespace tarnel
