#include "exercises/holding_exercise.h"

#include "core/holding_answer.h"
#include "core/number_text.h"
#include "core/rounding.h"
#include "exercises/val_str.h"

namespace tarnel {

namespace {

using enum StudyColumn;

// What the record does not hold joins its columns.
constexpr StudyColumn entryColumn = ans4;
constexpr StudyColumn outboundColumn = ans5;
constexpr StudyColumn firstHeadingColumn = ans6;
constexpr StudyColumn firstTurnColumn = ans7;

constexpr int outboundRow = 1;
constexpr int entryHeadingRow = 2;
constexpr std::array<std::int16_t, 5> offsets = {90, 150, 180, 210, 270};

std::vector<ExerciseRow> holdingRows() {
    return {{Text::askEntry,
             entryColumn,
             {{Text::entryDirect, {{entryColumn, "direct"}}},
              {Text::entryParallel, {{entryColumn, "parallel"}}},
              {Text::entryOffset, {{entryColumn, "offset"}}}},
             {}},
            {Text::askOutbound, outboundColumn, {}, {}},
            {Text::askFirstHeadingAfterStation, firstHeadingColumn, {}, {}},
            {Text::askFirstTurnAfterStation,
             firstTurnColumn,
             {{Text::turnLeft, {{firstTurnColumn, "left"}}},
              {Text::turnRight, {{firstTurnColumn, "right"}}},
              {Text::turnMaintain, {{firstTurnColumn, "maintain"}}}},
             {}}};
}

/// A record's heading in whole degrees, 0 for 360.
std::int16_t headingIn(const std::string& column) {
    const std::int16_t heading = toInt16(Val(column));
    return heading == 360 ? std::int16_t{0} : heading;
}

} // namespace

HoldingExercise::HoldingExercise(const StringTable& table, QuestionDraw& questionDraw, int bound)
    : Exercise(table, holdingRows()), draw(questionDraw), choiceBound(bound) {}

std::string HoldingExercise::task() const {
    return text(Text::holdingTask) + " " + question[ans3] + " " + text(Text::holdingInbound) + " " +
           question[ans2];
}

void HoldingExercise::prepare() {
    const std::int16_t HDG = headingIn(question[ans1]);
    const std::int16_t inbound = headingIn(question[ans2]);
    HLDtype = question[ans3];
    findHoldingAnswer(HDG, inbound, HLDtype, entry, outbound, offsetHDG, abeam, firstHDG,
                      firstTurn);
    question[entryColumn] = entry;
    question[outboundColumn] = numberText(std::int64_t{outbound});
    question[firstHeadingColumn] = numberText(std::int64_t{firstHDG});
    question[firstTurnColumn] = firstTurn;

    draw.drawChoices(offsets, choiceBound);
    const double base = inbound;
    headings[outboundRow] = {base, static_cast<double>(outbound), draw.drawnOffsets()};
    headings[entryHeadingRow] = {
        base, static_cast<double>(firstHDG), {offsets.begin(), offsets.end()}};
}

std::string HoldingExercise::rightAnswer(int row) const {
    if (row == outboundRow)
        return Str(outbound);
    return row == entryHeadingRow ? Str(firstHDG) : solution(row);
}

std::string HoldingExercise::solution(int row) const {
    return Exercise::rightAnswer(row);
}

} // namespace tarnel
