#pragma once

#include "exercises/exercise.h"
#include "exercises/question_draw.h"

namespace tarnel {

/// The bearing of an intercept: to the station (QDM) or from it (QDR).
enum class Bearing { qdm, qdr };

/// How a required bearing is intercepted: the actual bearing, how the angle between both develops,
/// first turn and first heading, all as recorded.
class InterceptExercise : public Exercise {
  public:
    InterceptExercise(const StringTable& texts, QuestionDraw& draw, Bearing bearing);
    [[nodiscard]] std::string task() const override;
    [[nodiscard]] std::vector<std::string> offers(int row) const override;

  protected:
    void prepare() override;

  private:
    QuestionDraw& draw;
    Bearing bearing;
};

} // namespace tarnel
