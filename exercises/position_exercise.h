#pragma once

#include "exercises/exercise.h"

namespace tarnel {

/// How a list of a position exercise is judged.
enum class ListRule {
    degrees,   ///< entry i stands for (i - 1) × 5 degrees, whatever it reads
    text,      ///< the entry reads as the answer
    textOrPair ///< the same, and an answer "+one+other+" accepts either
};

/// The entries of a list, the request to select at index 0, and how they are judged.
struct AnswerList {
    ListRule rule;
    std::vector<std::string> entries;
};

/// HSI and standard VOR position and orientation: three prompts of the record, each answered from a
/// list. One flag is used up by all three, and only the last can finish the question.
class PositionExercise : public Exercise {
  public:
    PositionExercise(const StringTable& texts, std::array<AnswerList, 3> answerLists);

    [[nodiscard]] std::vector<std::string> offers(int row) const override;
    [[nodiscard]] bool isRight(const Pick& pick) const override;
    [[nodiscard]] bool isShut(int row, const AnswerFlags& given) const override;
    void useUp(int row, AnswerFlags& given) const override;
    [[nodiscard]] bool canFinish(int row) const override { return row == rowCount() - 1; }

  private:
    std::array<AnswerList, 3> lists;
};

/// HSI position: 355 degrees has a blank entry in the first list.
[[nodiscard]] std::array<AnswerList, 3> hsiLists(const StringTable& texts);
/// Standard VOR position: a blank entry behind the degrees of the first list, two in the third.
[[nodiscard]] std::array<AnswerList, 3> standardVorLists(const StringTable& texts);
/// Orientation: sixteen directions and a blank entry, three times.
[[nodiscard]] std::array<AnswerList, 3> orientationLists(const StringTable& texts);

} // namespace tarnel
