#include "shell/flight_export.h"

#include "persistence/save_file.h"
#include "strings/cause_text.h"

namespace tarnel {

void exportFlight(TrainingDesk& training, BoxDesk& boxes, const LoggedFlight& flight) {
    std::optional<std::string> bytes;
    if (!training.with([&](TrainingLog& log) { bytes = log.session(flight.id); }))
        return;
    if (!bytes)
        return boxes.show(Text::errorTitle, std::string(boxes.texts[Text::flightFileGone]));
    const auto path = boxes.chooseFile({.saves = true,
                                        .title = std::string(boxes.texts[Text::exportFlight]),
                                        .present = std::string(boxes.texts[Text::flightFile]),
                                        .folder = {},
                                        .filter = std::string(boxes.texts[Text::sessionFilter]),
                                        .extension = "ts"});
    if (!path)
        return;
    try {
        saveFileBytes(*path, *bytes);
    } catch (const RunTimeError& error) {
        boxes.show(Text::errorTitle,
                   *path + "\n" + std::string(causeText(boxes.texts, error.cause())));
    }
}

} // namespace tarnel
