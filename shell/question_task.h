#pragma once

#include "debrief/task.h"
#include "exercises/exercise_catalogue.h"
#include "exercises/study_record.h"

#include <optional>
#include <span>

namespace tarnel {

/// What one who flies a question has to fly: `reference` is the flight of its solution, element 0
/// sample 1. What the question's own columns don't tell of line, holding or arc is taken from that
/// flight; where neither tells, it is to be flown after. Nothing without a reference.
///
/// The fix of a holding is the station that the reference comes nearest to, the station of a
/// bearing the one that it ends on that bearing to, and that of an arc the one whose DME it keeps.
[[nodiscard]] std::optional<Task> taskOf(ExerciseType type, const StudyRecord& record,
                                         std::span<const Sample> reference);

} // namespace tarnel
