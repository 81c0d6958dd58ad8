#pragma once

#include "exercises/exercise.h"

namespace tarnel {

/// Wind components, correction angle and outbound time: typed numbers, each committed by a button
/// that gives the answer's word. A number is right within a fifth of the record's, that end not
/// included; "Zero" takes the record's number alone.
class WindExercise : public Exercise {
  public:
    explicit WindExercise(const StringTable& texts);
    [[nodiscard]] std::string task() const override;
    /// Inbound course and air speed.
    [[nodiscard]] std::string known() const override;
    [[nodiscard]] std::string rule() const override { return text(Text::windRule); }
    [[nodiscard]] bool isRight(const Pick& pick) const override;
    [[nodiscard]] std::string given(const Pick& pick) const override;
    [[nodiscard]] std::string rightAnswer(int row) const override;
    /// Each answer shuts the first row too: it must be answered first.
    void useUp(int row, AnswerFlags& given) const override;

  private:
    [[nodiscard]] bool timeIsRight(const std::string& minutes, const std::string& seconds) const;
};

} // namespace tarnel
