#include "shell/exercise_menu.h"

#include "core/number_text.h"
#include "shell/instrument_position.h"

namespace tarnel {

namespace {

constexpr int asItIs = -1;
using Size = ExerciseItem::Size;

constexpr ExerciseItem items_[] = {
    {"adfpos", Text::exerciseAdfPosition, 5, asItIs, vor - 1, Size::asItIs},
    {"qdm", Text::exerciseQdm, 6, asItIs, rmi - 1, Size::asItIs},
    {"qdr", Text::exerciseQdr, 7, asItIs, rmi - 1, Size::asItIs},
    {"hsipos2", Text::exerciseHsiPosition, 1, vor - 1, hsi - 1, Size::asItIs},
    {"mnuAltitude", Text::exerciseHsiPositionLarge, 1, asItIs, hsi - 1, Size::largeHsi},
    {"hldhsi", Text::exerciseHsiHolding, 3, asItIs, hsi - 1, Size::asItIs},
    {"dmearcs", Text::exerciseDmeArcs, 9, rmi - 1, asItIs, Size::asItIs},
    {"stdvor", Text::exerciseStdVorPosition, 2, asItIs, vor - 1, Size::asItIs},
    {"wind", Text::exerciseWind, 8, rmi - 1, asItIs, Size::asItIs},
    {"hlddg", Text::exerciseDgHolding, 4, asItIs, dg - 1, Size::asItIs},
    {"qdnorient", Text::exerciseOrientation, 10, vor - 1, hsi - 1, Size::small},
};

} // namespace

std::span<const ExerciseItem> exerciseItems() {
    return items_;
}

ExerciseMenu::ExerciseMenu(FormState& form)
    : introduction1(form, "intro1", Text::introduction1),
      introduction2(form, "intro2", Text::introduction2),
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
    std::vector<CommandButton*> all{&introduction1, &introduction2, &resetStatistics};
    for (const auto& item : exercises)
        all.push_back(item.get());
    for (std::size_t i = 0; i < practiceCount; ++i) {
        all.push_back(adfPractice[i].get());
        all.push_back(vorPractice[i].get());
    }
    return all;
}

} // namespace tarnel
