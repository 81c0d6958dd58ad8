#include "shell/asked_file.h"

#include "persistence/save_file.h"
#include "strings/cause_text.h"

namespace tarnel {

void writeAskedFile(BoxDesk& boxes, const FileQuestion& question,
                    const std::function<std::optional<std::string>()>& bytes) {
    const std::optional<std::string> path = boxes.chooseFile(question);
    if (!path)
        return;
    const std::optional<std::string> written = bytes();
    if (!written)
        return;
    try {
        saveFileBytes(*path, *written);
    } catch (const RunTimeError& error) {
        boxes.show(Text::errorTitle,
                   *path + "\n" + std::string(causeText(boxes.texts, error.cause())));
    }
}

} // namespace tarnel
