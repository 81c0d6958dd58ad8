#pragma once

#include "exercises/exercise.h"

namespace tarnel {

/// ADF position: value and trend of QDR and QDM, and the relative bearing. The study record brings
/// the offered values.
[[nodiscard]] std::vector<ExerciseRow> adfRows();

} // namespace tarnel
