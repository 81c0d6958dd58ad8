#pragma once

#include "controls/form_controls.h"
#include "exercises/exercise_catalogue.h"

#include <array>
#include <memory>
#include <string>
#include <vector>

namespace tarnel {

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
    CommandButton ownCourses; ///< the sub menu of the courses that the user has
    CommandButton progress;   ///< opens what the log tells; also in flight, which pauses then
    CommandButton resetStatistics;

    [[nodiscard]] std::vector<CommandButton*> items();

  private:
    std::vector<std::string> practiceNames; ///< what the practice items are called
};

} // namespace tarnel
