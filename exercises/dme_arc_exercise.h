#pragma once

#include "exercises/exercise.h"
#include "exercises/question_draw.h"

namespace tarnel {

/// How a DME arc is joined and left: first turn, first heading and lead radial, all as recorded.
class DmeArcExercise : public Exercise {
  public:
    DmeArcExercise(const StringTable& texts, QuestionDraw& draw);
    [[nodiscard]] std::string task() const override;

  protected:
    void prepare() override;

  private:
    QuestionDraw& draw;
};

} // namespace tarnel
