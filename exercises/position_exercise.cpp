#include "exercises/position_exercise.h"

#include "core/number_text.h"
#include "core/rounding.h"
#include "exercises/val_str.h"

namespace tarnel {

namespace {

using enum StudyColumn;

constexpr int degreesPerEntry = 5;

std::vector<std::string> listOf(const StringTable& texts, const std::vector<Text>& words,
                                std::size_t blanks = 0) {
    std::vector<std::string> entries{std::string(texts[Text::pleaseSelect])};
    for (const Text word : words)
        entries.emplace_back(texts[word]);
    entries.resize(entries.size() + blanks);
    return entries;
}

std::vector<std::string> degreeEntries(const StringTable& texts) {
    std::vector<std::string> entries = listOf(texts, {});
    for (int degrees = 0; degrees < 360; degrees += degreesPerEntry)
        entries.push_back(zeroPadded(degrees, 3));
    return entries;
}

/// Whether the entry at `index` stands for the direction `answer`. North is the entry of 0 degrees,
/// also for an answer of 360.
bool degreesFit(int index, const std::string& answer) {
    const double degrees = (index - 1) * degreesPerEntry;
    const double right = roundToEven(Val(answer));
    return degrees == right || (right == 360 && degrees == 0);
}

/// Whether `picked` is the answer, or one of the two of an answer "+one+other+". A pair whose last
/// "+" is missing ends with the text.
bool fitsPair(std::string_view picked, std::string_view answer) {
    constexpr char mark = '+';
    if (!answer.starts_with(mark))
        return picked == answer;
    answer.remove_prefix(1);
    const std::string_view first = answer.substr(0, answer.find(mark));
    answer.remove_prefix(std::min(first.size() + 1, answer.size()));
    return picked == first || picked == answer.substr(0, answer.find(mark));
}

} // namespace

PositionExercise::PositionExercise(const StringTable& table, std::array<AnswerList, 3> answerLists)
    : Exercise(table, {{qa, ans1, {}, {}}, {qb, ans2, {}, {}}, {qc, ans3, {}, {}}}),
      lists(std::move(answerLists)) {}

std::vector<std::string> PositionExercise::offers(int row) const {
    return lists[static_cast<std::size_t>(row)].entries;
}

bool PositionExercise::isRight(const Pick& pick) const {
    const auto& [rule, entries] = lists[static_cast<std::size_t>(pick.row)];
    const std::string& answer = question[at(pick.row).answer];
    const std::string& picked = entries[static_cast<std::size_t>(pick.option)];
    switch (rule) {
    case ListRule::degrees:
        return degreesFit(pick.option, answer);
    case ListRule::textOrPair:
        return fitsPair(picked, answer);
    case ListRule::text:
        break;
    }
    return picked == answer;
}

/// A list that was answered is hidden; its flag stands for the others too and shuts none.
bool PositionExercise::isShut(int /*row*/, const AnswerFlags& /*given*/) const {
    return false;
}

void PositionExercise::useUp(int /*row*/, AnswerFlags& given) const {
    given[0] = -1;
}

std::array<AnswerList, 3> hsiLists(const StringTable& texts) {
    std::vector<std::string> withBlank = degreeEntries(texts);
    withBlank.back().clear();
    const std::vector<Text> moves = {Text::moveForward, Text::moveBackward, Text::moveLeft,
                                     Text::moveRight, Text::moveNone};
    return {{{ListRule::degrees, withBlank},
             {ListRule::degrees, degreeEntries(texts)},
             {ListRule::textOrPair, listOf(texts, moves)}}};
}

std::array<AnswerList, 3> standardVorLists(const StringTable& texts) {
    std::vector<std::string> withBlank = degreeEntries(texts);
    withBlank.emplace_back();
    const std::vector<Text> moves = {Text::moveNone, Text::moveLeft, Text::moveRight};
    return {{{ListRule::degrees, withBlank},
             {ListRule::degrees, degreeEntries(texts)},
             {ListRule::text, listOf(texts, moves, 2)}}};
}

std::array<AnswerList, 3> orientationLists(const StringTable& texts) {
    std::vector<std::string> entries = listOf(texts, {});
    for (const char* direction : {"030", "045", "060", "090", "120", "135", "150", "180", "210",
                                  "225", "240", "270", "300", "315", "330", "360", ""})
        entries.emplace_back(direction);
    const AnswerList directions{ListRule::text, entries};
    return {{directions, directions, directions}};
}

} // namespace tarnel
