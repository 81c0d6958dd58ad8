#pragma once

#include "core/runtime_random.h"
#include "exercises/study_file.h"

#include <array>
#include <cstdint>
#include <functional>
#include <span>
#include <vector>

namespace tarnel {

/// Where a draw starts: the present time, or a fixed number.
using SeedSource = std::function<std::uint32_t()>;

/// What an exercise draws by chance: the order of its questions and the offered headings. Both use
/// one set of marks for what has been drawn, and the choices depend on the marks that the questions
/// left: with at least 8 questions these turn away the numbers above the offers.
class QuestionDraw {
  public:
    explicit QuestionDraw(SeedSource seedSource) : seed(std::move(seedSource)) {}
    /// A draw for single questions, of which nothing but the choices is drawn by chance.
    [[nodiscard]] static QuestionDraw ofChoices() {
        constexpr int manyQuestions = 20;
        QuestionDraw draw([] { return std::uint32_t{1}; });
        draw.shuffle(manyQuestions);
        return draw;
    }

    /// Puts the records 0 to `lastQuestion` into an order. `lastQuestion` itself never comes up,
    /// except alone; the last place, for which nothing is left, repeats a record.
    void shuffle(int lastQuestion);
    /// The record at place `slot` of the order.
    [[nodiscard]] int question(int slot) const {
        return questionOrder[static_cast<std::size_t>(slot)];
    }

    /// Draws one of `offsets`, 4 or 5 of them, for each place of a row of as many offers. Numbers
    /// of 1 to `bound` are drawn, also those without an offset if their mark does not stand.
    void drawChoices(std::span<const std::int16_t> offsets, int bound);
    /// The offset of each place. The number 5 stands for an earlier exercise's offset if only four
    /// were given; the number 6 throws the subscript error.
    [[nodiscard]] std::vector<std::int16_t> drawnOffsets() const;

  private:
    template <class Draw>
    int drawUnused(Draw draw);

    SeedSource seed;
    RuntimeRandom random;
    std::array<std::int16_t, maxStudyRecords> usedMark{}; ///< 0 free, -1 drawn
    std::array<std::int16_t, maxStudyRecords> questionOrder{};
    std::vector<std::int16_t> choiceOrder; ///< the drawn numbers, counted from 1
    std::array<std::int16_t, 5> choiceOffset{};
};

} // namespace tarnel
