#include "exercises/intercept_exercise.h"

#include "exercises/val_str.h"

namespace tarnel {

namespace {

using enum StudyColumn;

constexpr int bearingRow = 0;
constexpr int interceptHeadingRow = 3;
constexpr std::size_t aboveOption = 1;

/// Here, unlike elsewhere, the records write "grösser" with a double s.
std::vector<ExerciseRow> interceptRows(bool qdm) {
    return {{qdm ? Text::askActualQdm : Text::askActualQdr, ans1, {}, {}},
            {qdm ? Text::askQdmAngle : Text::askQdrAngle,
             ans2,
             {{Text::angleSmaller, {{ans2, "decrease"}, {ans2, "kleiner"}}},
              {Text::angleSame, {{ans2, "remain constant"}, {ans2, "gleich"}}},
              {Text::angleLarger, {{ans2, "increase"}, {ans2, "grösser"}}}},
             {}},
            {Text::askFirstTurn,
             ans3,
             {{Text::turnLeft, {{ans3, "left"}}},
              {Text::turnMaintain, {{ans3, "maintain"}}},
              {Text::turnRight, {{ans3, "right"}}}},
             {}},
            {Text::askFirstHeading,
             ans4,
             {{qdm ? Text::belowActualQdm : Text::belowRequiredQdr,
               {{ans4, "decrease"}, {ans4, "kleiner"}}},
              {qdm ? Text::aboveActualQdm : Text::aboveRequiredQdrOffer,
               {{ans4, "increase"}, {ans4, "grösser"}, {ans4, "maintain"}}}},
             {}}};
}

} // namespace

InterceptExercise::InterceptExercise(const StringTable& table, QuestionDraw& questionDraw,
                                     Bearing asked)
    : Exercise(table, interceptRows(asked == Bearing::qdm)), draw(questionDraw), bearing(asked) {}

std::string InterceptExercise::task() const {
    return text(bearing == Bearing::qdm ? Text::interceptQdm : Text::interceptQdr) + " " +
           question[qa];
}

std::vector<std::string> InterceptExercise::offers(int row) const {
    std::vector<std::string> captions = Exercise::offers(row);
    if (bearing == Bearing::qdr && row == interceptHeadingRow && question[ans4] == "maintain")
        captions[aboveOption] = question[ans1];
    return captions;
}

void InterceptExercise::prepare() {
    constexpr std::array<std::int16_t, 4> offsets = {90, 0, 180, 10};
    draw.drawChoices(offsets, 6);
    const double actual = Val(question[ans1]);
    headings[bearingRow] = {actual, actual, draw.drawnOffsets()};
}

} // namespace tarnel
