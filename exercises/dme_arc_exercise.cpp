#include "exercises/dme_arc_exercise.h"

#include "exercises/val_str.h"

namespace tarnel {

namespace {

using enum StudyColumn;

constexpr int arcHeadingRow = 1;
constexpr int leadRadialRow = 2;

std::vector<ExerciseRow> dmeArcRows() {
    return {{Text::askFirstTurnToArc,
             ans1,
             {{Text::turnLeft, {{ans1, "left"}}},
              {Text::turnMaintain, {{ans1, "maintain"}}},
              {Text::turnRight, {{ans1, "right"}}}},
             {}},
            {Text::askArcFirstHeading, ans2, {}, {}},
            {Text::askLeadRadial, ans3, {}, {}}};
}

} // namespace

DmeArcExercise::DmeArcExercise(const StringTable& table, QuestionDraw& questionDraw)
    : Exercise(table, dmeArcRows()), draw(questionDraw) {}

std::string DmeArcExercise::task() const {
    return question[qc];
}

void DmeArcExercise::prepare() {
    constexpr std::array<std::int16_t, 5> offsets = {90, 150, 180, 210, 0};
    draw.drawChoices(offsets, 5);
    const std::vector<std::int16_t> drawn = draw.drawnOffsets();
    const double heading = Val(question[ans2]);
    const double radial = Val(question[ans3]);
    headings[arcHeadingRow] = {heading, heading, drawn};
    // One draw serves both rows.
    headings[leadRadialRow] = {radial, radial, {drawn[4], drawn[3], drawn[1], drawn[2], drawn[0]}};
}

} // namespace tarnel
