#include "exercises/weak_spot.h"

#include "strings/string_table.h"

#include <array>

namespace tarnel {

namespace {

using enum StudyColumn;

bool has(std::string_view text, std::string_view part) {
    return text.find(part) != std::string_view::npos;
}

/// A prompt for a direction says which one in words that both languages share.
Text directionAsked(std::string_view prompt) {
    static constexpr std::pair<std::string_view, Text> marks[] = {
        {"elative", Text::spotRelativeBearing},
        {"adial", Text::spotRadial},
        {"QDM", Text::spotQdm},
        {"QDR", Text::spotQdr},
        {"HDG", Text::spotHeading},
        {"eading", Text::spotHeading},
    };
    for (const auto& [word, spot] : marks)
        if (has(prompt, word))
            return spot;
    return Text::spotDirection;
}

/// A course may be in either language.
bool stays(const std::string& move) {
    return move == germanTable()[Text::moveNone] || move == englishTable()[Text::moveNone];
}

Text positionSpot(ExerciseType exercise, int row, const StudyRecord& record) {
    constexpr int moveRow = 2;
    if (row != moveRow || exercise == ExerciseType::orientation)
        return directionAsked(record[row == 0 ? qa : row == 1 ? qb : qc]);
    if (exercise == ExerciseType::hsiPosition)
        return stays(record[ans3]) ? Text::spotBarStays : Text::spotBarMoves;
    return stays(record[ans3]) ? Text::spotNeedleStays : Text::spotNeedleMoves;
}

/// An offset entry into right turns comes from the left of the inbound course, a parallel one from
/// its right; left turns are the mirror image.
Text holdingSpot(int row, const StudyRecord& record) {
    struct ByEntry {
        std::string_view entry;
        Text rightTurns;
        Text leftTurns;
        Text firstHeading;
        Text firstTurn;
    };
    static constexpr ByEntry entries[] = {
        {"direct", Text::spotEntryDirect, Text::spotEntryDirect, Text::spotHeadingDirect,
         Text::spotTurnDirect},
        {"parallel", Text::spotEntryParallelRight, Text::spotEntryParallelLeft,
         Text::spotHeadingParallel, Text::spotTurnParallel},
        {"offset", Text::spotEntryOffsetLeft, Text::spotEntryOffsetRight, Text::spotHeadingOffset,
         Text::spotTurnOffset},
    };
    for (const ByEntry& each : entries)
        if (each.entry == record[ans4])
            return std::array{record[ans3] == "Standard" ? each.rightTurns : each.leftTurns,
                              Text::spotOutbound, each.firstHeading,
                              each.firstTurn}[static_cast<std::size_t>(row)];
    return Text::spotOutbound;
}

/// The rows of exercises in which every question asks the same.
template <std::size_t count>
Text rowSpot(const std::array<Text, count>& spots, int row) {
    return spots.at(static_cast<std::size_t>(row));
}

} // namespace

Text weakSpot(ExerciseType exercise, int row, const StudyRecord& record) {
    using enum ExerciseType;
    switch (exercise) {
    case hsiHolding:
    case dgHolding:
        return holdingSpot(row, record);
    case adfPosition:
        return rowSpot(std::array{Text::spotQdr, Text::spotQdrTrend, Text::spotQdm,
                                  Text::spotQdmTrend, Text::spotRelativeBearing},
                       row);
    case qdm:
        return rowSpot(std::array{Text::spotActualQdm, Text::spotQdmAngle, Text::spotQdmTurn,
                                  Text::spotQdmHeading},
                       row);
    case qdr:
        return rowSpot(std::array{Text::spotActualQdr, Text::spotQdrAngle, Text::spotQdrTurn,
                                  Text::spotQdrHeading},
                       row);
    case wind:
        return rowSpot(std::array{Text::spotHeadWind, Text::spotCrosswind, Text::spotCorrection,
                                  Text::spotOutboundTime},
                       row);
    case dmeArc:
        return rowSpot(std::array{Text::spotTurnToArc, Text::spotArcHeading, Text::spotLeadRadial},
                       row);
    default:
        return positionSpot(exercise, row, record);
    }
}

} // namespace tarnel
