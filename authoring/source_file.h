#pragma once

#include "authoring/course_builder.h"

#include <string>
#include <string_view>

namespace tarnel {

/// Reads and builds a source of any kind: charts, the questions of an exercise, or a flight. Throws
/// PlanError for what can't be read.
[[nodiscard]] BuiltCourse buildSource(std::string_view text, const std::string& file,
                                      const ChartShelf& charts,
                                      const std::string& applicationFolder);

} // namespace tarnel
