#include "shell/box_desk.h"

#include "core/number_text.h"
#include "shell/text_format.h"
#include "strings/cause_text.h"

#include <utility>

namespace tarnel {

template <class Shown>
auto BoxDesk::whileUp(Shown shown) {
    beforeBox();
    const bool wasUp = std::exchange(boxUp, true);
    auto answer = shown();
    boxUp = wasUp;
    return answer;
}

void BoxDesk::show(Text title, const std::string& message, BoxKind kind) {
    whileUp([&] {
        outside.messageBox(kind, std::string(texts[title]), message);
        return true;
    });
}

bool BoxDesk::confirm(Text title, Text question) {
    return whileUp(
        [&] { return outside.ask(std::string(texts[title]), std::string(texts[question])); });
}

std::optional<std::string> BoxDesk::chooseFile(const FileQuestion& question) {
    return whileUp([&] { return outside.chooseFile(question); });
}

void BoxDesk::report(const RunTimeError& error) {
    const std::string told =
        filledIn(texts[Text::flightPaused], {numberText(std::int64_t{error.number()}),
                                             error.source(), causeText(texts, error.cause())});
    try {
        pause();
    } catch (const RunTimeError&) {
        // What hinders the flight hinders its picture too; it has been told, or is told below.
    }
    if (std::exchange(errorTold, told) != told)
        show(Text::errorTitle, told);
}

void BoxDesk::pictureMissing(const std::string& file) {
    if (!std::exchange(pictureMissingSaid, true))
        show(Text::errorTitle, filledIn(texts[Text::picturesUnreadable], {file}));
}

void BoxDesk::tellSettingsTrouble() {
    if (const auto trouble = outside.settings().takeTrouble())
        show(Text::errorTitle, filledIn(texts[Text::settingsNotKept],
                                        {trouble->file, causeText(texts, trouble->cause)}));
}

} // namespace tarnel
