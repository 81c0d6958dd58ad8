#include "exercises/question_draw.h"

#include "core/run_time_error.h"

#include <algorithm>

namespace tarnel {

namespace {

constexpr std::int16_t used = -1;

} // namespace

/// Draws up to 1000 times until the number's mark is free, and marks it. If none was free, the last
/// number drawn stands.
template <class Draw>
int QuestionDraw::drawUnused(Draw draw) {
    constexpr int maxTries = 1000;
    int drawn = draw();
    for (int tries = 1; tries < maxTries && usedMark[static_cast<std::size_t>(drawn)]; ++tries)
        drawn = draw();
    usedMark[static_cast<std::size_t>(drawn)] = used;
    return drawn;
}

void QuestionDraw::shuffle(int lastQuestion) {
    const auto count = static_cast<std::size_t>(lastQuestion) + 1;
    std::fill_n(usedMark.begin(), count, std::int16_t{0});
    random.seed(seed());
    for (std::size_t slot = 0; slot < count; ++slot)
        questionOrder[slot] =
            static_cast<std::int16_t>(drawUnused([&] { return random.below(lastQuestion); }));
}

void QuestionDraw::drawChoices(std::span<const std::int16_t> offsets, int bound) {
    std::ranges::copy(offsets, choiceOffset.begin());
    std::fill_n(usedMark.begin() + 1, offsets.size(), std::int16_t{0});
    random.seed(seed());
    choiceOrder.clear();
    while (choiceOrder.size() < offsets.size())
        choiceOrder.push_back(
            static_cast<std::int16_t>(drawUnused([&] { return random.below(bound) + 1; })));
}

std::vector<std::int16_t> QuestionDraw::drawnOffsets() const {
    std::vector<std::int16_t> offsets;
    for (const std::int16_t number : choiceOrder) {
        const auto index = static_cast<std::size_t>(number - 1);
        if (index >= choiceOffset.size())
            throw RunTimeError(Cause::subscriptOutOfRange, "QAform");
        offsets.push_back(choiceOffset[index]);
    }
    return offsets;
}

} // namespace tarnel
