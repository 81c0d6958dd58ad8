#pragma once

#include "shell/exercise_conduct.h"

namespace tarnel {

/// One step out of an exercise: from the student's flight or the solution back to the question,
/// from there out of it. Asks before a question that was begun is lost. False if none runs.
bool stepOut(QAform& exercises, const ExerciseConduct& conduct, CommandButton& back,
             BoxDesk& boxes);

} // namespace tarnel
