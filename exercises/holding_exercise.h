#pragma once

#include "exercises/exercise.h"
#include "exercises/question_draw.h"

namespace tarnel {

/// How a holding is entered: the entry, the outbound course, the first heading and the first turn.
/// The answers are computed from heading, inbound course and kind of holding.
class HoldingExercise : public Exercise {
  public:
    /// `bound` is the highest number drawn for the offers, of which there are five.
    HoldingExercise(const StringTable& texts, QuestionDraw& draw, int bound);

    [[nodiscard]] std::string task() const override;
    [[nodiscard]] std::string rightAnswer(int row) const override;
    [[nodiscard]] std::string solution(int row) const override;

  protected:
    void prepare() override;

  private:
    QuestionDraw& draw;
    int choiceBound;
    std::string HLDtype;
    std::string entry;
    std::string firstTurn;
    std::int16_t outbound = 0;
    std::int16_t offsetHDG = 0;
    std::int16_t abeam = 0;
    std::int16_t firstHDG = 0;
};

} // namespace tarnel
