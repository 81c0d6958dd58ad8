#include "shell/task_text.h"

#include "core/number_text.h"
#include "shell/finding_text.h"
#include "shell/task_choice.h"
#include "shell/text_format.h"

namespace tarnel {

namespace {

std::string degrees(int course, const StringTable& texts) {
    return zeroPadded(course, 3) + std::string(texts[Text::unitDegreeSign]);
}

} // namespace

std::string taskName(const Task& task, const StringTable& texts) {
    if (std::holds_alternative<WindTask>(task))
        return std::string(texts[Text::taskWind]);
    return std::string(texts[nameOf(choiceOf(task).kind)]);
}

std::string taskDetail(const Task& task, const std::string& station, const StringTable& texts) {
    const TaskChoice choice = choiceOf(task);
    if (choice.kind == TaskKind::reference)
        return {};
    const std::string course = degrees(choice.course, texts);
    std::string detail = station;
    const auto add = [&](const std::string& part) { detail.append(" · ").append(part); };
    switch (choice.kind) {
    case TaskKind::holding:
        add(std::string(
            texts[choice.side == HoldingSide::left ? Text::taskTurnsLeft : Text::taskTurnsRight]));
        add(filledIn(texts[Text::taskInboundOn], {course}));
        break;
    case TaskKind::arc:
        add(std::string(texts[Text::taskDistance]) + ' ' +
            valueText(choice.distance, FindingUnit::nauticalMiles, texts));
        add(std::string(texts[choice.clockwise ? Text::taskClockwise : Text::taskAnticlockwise]));
        add(filledIn(texts[Text::taskFinalOn], {course}));
        break;
    default:
        add(course);
    }
    return detail;
}

} // namespace tarnel
