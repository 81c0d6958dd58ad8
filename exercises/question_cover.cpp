#include "exercises/question_cover.h"

#include "exercises/exercise_catalogue.h"

namespace tarnel {

QuestionCover questionCover(std::int16_t type, bool posed) {
    if (!posed)
        return {true, true, Text::instrumentWithoutFlight};
    const ExerciseKind* exercise = exerciseOf(type);
    return {exercise && exercise->askedOnChart, asksForPosition(type)};
}

} // namespace tarnel
