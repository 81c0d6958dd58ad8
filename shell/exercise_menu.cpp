#include "shell/exercise_menu.h"

#include "core/number_text.h"

namespace tarnel {

ExerciseMenu::ExerciseMenu(FormState& form)
    : introduction1(form, "intro1", Text::introduction1),
      introduction2(form, "intro2", Text::introduction2),
      ownCourses(form, "mnuOwnCourses", Text::ownCourses),
      progress(form, "mnuProgress", Text::progress),
      resetStatistics(form, "resstats", Text::resetStatistics) {
    for (const ExerciseItem& item : exerciseItems())
        exercises.push_back(std::make_unique<CommandButton>(form, item.name, item.text));
    practiceNames.reserve(2 * practiceCount);
    for (std::size_t i = 0; i < practiceCount; ++i) {
        const std::string number = numberText(static_cast<std::int64_t>(i + 1));
        practiceNames.push_back("adf" + number);
        adfPractice[i] = std::make_unique<CommandButton>(form, practiceNames.back());
        practiceNames.push_back("vor" + number);
        vorPractice[i] = std::make_unique<CommandButton>(form, practiceNames.back());
    }
}

std::vector<CommandButton*> ExerciseMenu::items() {
    std::vector<CommandButton*> all{&introduction1, &introduction2, &ownCourses, &resetStatistics};
    for (const auto& item : exercises)
        all.push_back(item.get());
    for (std::size_t i = 0; i < practiceCount; ++i) {
        all.push_back(adfPractice[i].get());
        all.push_back(vorPractice[i].get());
    }
    return all;
}

} // namespace tarnel
