#pragma once

#include "controls/form_controls.h"

#include <array>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

namespace tarnel {

/// What an exercise's menu item sets before the first question.
struct ExerciseItem {
    const char* name;
    Text text;
    std::int16_t type; ///< `c_QAtype`
    int inst2Kind;     ///< entry of `Combo3`, -1 as it is
    int inst3Kind;     ///< entry of `Combo2`, -1 as it is
    enum class Size { asItIs, small, largeHsi } size;
};

/// The exercises of the menu, in its order.
[[nodiscard]] std::span<const ExerciseItem> exerciseItems();

/// The items that start exercises or load practice sessions. They rest in flight and while an
/// exercise runs.
struct ExerciseMenu {
    explicit ExerciseMenu(FormState& form);

    static constexpr std::size_t practiceCount = 10;
    using Practice = std::array<std::unique_ptr<CommandButton>, practiceCount>;

    std::vector<std::unique_ptr<CommandButton>> exercises; ///< by `exerciseItems`
    Practice adfPractice;
    Practice vorPractice;
    CommandButton introduction1;
    CommandButton introduction2;
    CommandButton resetStatistics;

    [[nodiscard]] std::vector<CommandButton*> items();

  private:
    std::vector<std::string> practiceNames; ///< what the practice items are called
};

} // namespace tarnel
