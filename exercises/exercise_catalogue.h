#pragma once

#include "exercises/exercise.h"
#include "exercises/panel_widgets.h"
#include "exercises/question_draw.h"

#include <memory>
#include <span>
#include <string>
#include <vector>

namespace tarnel {

/// What stands for an exercise outside its questions.
struct ExerciseKind {
    std::int16_t type; ///< the value of `c_QAtype`
    PanelId panel;
    std::string_view studyFile;   ///< the German one; others have "e-" before the name
    bool studyFileForAll = false; ///< the German file serves where the other is missing
    Text title;
    std::string_view statisticStem;
    std::int16_t solvedCode = 6;   ///< `c_showResult` once all is right
    std::int16_t solutionCode = 6; ///< `c_showResult` when the solution is asked for
    bool startsAtRandom = false;
    bool askedOnChart = false; ///< the chart shows the aircraft, and the instruments are covered
    bool fliesHolding = false; ///< its flights fly a holding
    std::unique_ptr<Exercise> (*make)(const StringTable& texts, QuestionDraw& draw);
};

/// The exercises, types 1 to 10.
[[nodiscard]] std::span<const ExerciseKind> exerciseCatalogue();

/// The exercise of `type`, or null.
[[nodiscard]] const ExerciseKind* exerciseOf(int type);

/// Whether the exercise asks for a position: the radio faces would tell it.
[[nodiscard]] bool asksForPosition(int type);

/// `c_QAtype` besides the exercises' types.
constexpr std::int16_t exerciseLeft = 0;
constexpr std::int16_t exerciseClosed = -1;

/// The names of its study file, the one to be preferred first.
[[nodiscard]] std::vector<std::string> studyFileNames(const ExerciseKind& exercise, bool german);

} // namespace tarnel
