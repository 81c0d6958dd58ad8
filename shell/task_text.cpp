#include "shell/task_text.h"

#include "core/number_text.h"
#include "shell/task_choice.h"

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
    std::string detail = station;
    const auto add = [&](Text word) { detail.append(", ").append(texts[word]); };
    switch (choice.kind) {
    case TaskKind::holding:
        add(choice.side == HoldingSide::left ? Text::taskLeft : Text::taskRight);
        add(Text::taskInbound);
        detail += ' ';
        break;
    case TaskKind::arc:
        add(Text::taskDistance);
        detail.append(" ").append(numberText(choice.distance));
        add(choice.clockwise ? Text::taskClockwise : Text::taskAnticlockwise);
        add(Text::taskFinal);
        detail += ' ';
        break;
    default:
        detail += ", ";
    }
    return detail + degrees(choice.course, texts);
}

} // namespace tarnel
