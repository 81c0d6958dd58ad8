#pragma once

#include "persistence/file_problem.h"
#include "strings/string_table.h"

#include <string>

namespace tarnel {

/// Where a chart or session file is wrong, and what should stand there.
[[nodiscard]] std::string problemText(const StringTable& texts, const FileProblem& problem);

} // namespace tarnel
