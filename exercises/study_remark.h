#pragma once

#include "exercises/study_file.h"
#include "strings/string_table.h"

#include <string>

namespace tarnel {

/// What is wrong with the study file called `name`, and where; empty if nothing is.
[[nodiscard]] std::string studyRemark(const StudyFile& study, const std::string& name,
                                      const StringTable& texts);

} // namespace tarnel
