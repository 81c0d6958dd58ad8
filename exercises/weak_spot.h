#pragma once

#include "exercises/exercise_catalogue.h"
#include "strings/text.h"

namespace tarnel {

/// What a row of a question trains, in words, such as "offset entries from the left": the exercise,
/// the row and the kind of situation. `record` has what the exercise works out, too.
[[nodiscard]] Text weakSpot(ExerciseType exercise, int row, const StudyRecord& record);

} // namespace tarnel
