#pragma once

#include "exercises/qa_form.h"
#include "shell/exercise_conduct.h"
#include "shell/flight_switch.h"
#include "shell/trainer_controls.h"
#include "strings/string_table.h"

namespace tarnel {

/// What the quiz shows and acts on.
struct QuizModel {
    TrainerControls& controls;
    QAform& exercises;
    const ExerciseConduct& exercise;
    const FlightSwitch& flight;
    const StringTable& texts;
};

} // namespace tarnel
