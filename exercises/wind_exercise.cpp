#include "exercises/wind_exercise.h"

#include "exercises/val_str.h"

#include <algorithm>
#include <cmath>

namespace tarnel {

namespace {

using enum StudyColumn;

constexpr int timeRow = 3;
constexpr int zeroOption = 1;
constexpr double tolerance = 0.2;
constexpr std::array<StudyColumn, timeRow> numberColumns = {ans1, ans3, ans5};

std::vector<WordOffer> sides(StudyColumn word) {
    return {{Text::windLeft, {{word, "left"}, {word, "links"}}},
            {Text::windZero, {{word, "-"}}},
            {Text::windRight, {{word, "right"}, {word, "rechts"}}}};
}

/// As a record writes a time: 1.05 for a minute and five seconds.
std::string minutesAndSeconds(const std::string& minutes, const std::string& seconds) {
    constexpr std::size_t digits = 2;
    const std::string zeros(digits - std::min(digits, seconds.size()), '0');
    return (minutes.empty() ? "0" : minutes) + "." + zeros + seconds;
}

std::vector<ExerciseRow> windRows() {
    return {{Text::askHeadOrTailWind,
             ans2,
             {{Text::windHead, {{ans2, "Head"}}},
              {Text::windZero, {{ans2, "-"}}},
              {Text::windTail, {{ans2, "Tail"}}}},
             {}},
            {Text::askCrosswind, ans4, sides(ans4), {}},
            {Text::askWindCorrection, ans6, sides(ans6), {}},
            {Text::askOutboundTime, ans7, {{Text::ok, {}}}, {}}};
}

} // namespace

WindExercise::WindExercise(const StringTable& table) : Exercise(table, windRows()) {}

std::string WindExercise::task() const {
    return text(Text::windTask) + " " + question[qa] + "/" + question[qb];
}

std::string WindExercise::known() const {
    const std::string between = question[qc].empty() || question[qd].empty() ? "" : ", ";
    return question[qc] + between + question[qd];
}

bool WindExercise::isRight(const Pick& pick) const {
    if (pick.row == timeRow)
        return timeIsRight(pick.typed[0], pick.typed[1]);
    const double right = Val(question[numberColumns[static_cast<std::size_t>(pick.row)]]);
    const double off = std::abs(Val(pick.typed[0]) - right);
    const bool numberFits = pick.option == zeroOption ? off == 0 : off < tolerance * right;
    return numberFits && Exercise::isRight(pick);
}

/// The record's time is minutes.seconds, 1.45 for 105 seconds; where the binary fraction falls
/// short, a second is lost.
bool WindExercise::timeIsRight(const std::string& minutes, const std::string& seconds) const {
    const double recorded = Val(question[ans7]);
    const double whole = std::floor(recorded);
    const double right = std::floor((recorded - whole) * 100) + whole * 60;
    const double entered = Val(minutes) * 60 + Val(seconds);
    return std::abs(entered - right) < tolerance * right;
}

std::string WindExercise::given(const Pick& pick) const {
    if (pick.row == timeRow)
        return minutesAndSeconds(pick.typed[0], pick.typed[1]) + " " +
               text(Text::unitMinutesSeconds);
    return Exercise::given(pick) + " " + pick.typed[0];
}

std::string WindExercise::rightAnswer(int row) const {
    if (row == timeRow)
        return question[ans7] + " " + text(Text::unitMinutesSeconds);
    return question[at(row).answer] + " " + question[numberColumns[static_cast<std::size_t>(row)]];
}

void WindExercise::useUp(int row, AnswerFlags& given) const {
    Exercise::useUp(0, given);
    Exercise::useUp(row, given);
}

} // namespace tarnel
