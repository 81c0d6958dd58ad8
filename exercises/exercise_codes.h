#pragma once

#include <cstdint>

namespace tarnel {

/// The numbers of `c_QAtype`: the exercise that runs, or why none does.
enum class ExerciseType : std::int16_t {
    closed = -1,
    left = 0, ///< by the student; the trainer has not yet followed
    hsiPosition,
    standardVorPosition,
    hsiHolding,
    dgHolding,
    adfPosition,
    qdm,
    qdr,
    wind,
    dmeArc,
    orientation,
};

/// The numbers of `c_showResult`: what an exercise asks the trainer to do next. The replay is to
/// begin either at once or with its controls armed.
enum class ShowResult : std::int16_t {
    nothing = 0,
    replaySolution = 1,
    nextQuestion = 2,
    studentFlies = 4,
    replayArmed = 6,
};

} // namespace tarnel
