#include "shell/flight_export.h"

#include "shell/asked_file.h"

namespace tarnel {

void exportFlight(TrainingDesk& training, BoxDesk& boxes, const LoggedFlight& flight) {
    std::optional<std::string> bytes;
    if (!training.with([&](TrainingLog& log) { bytes = log.session(flight.id); }))
        return;
    if (!bytes)
        return boxes.show(Text::errorTitle, std::string(boxes.texts[Text::flightFileGone]));
    writeAskedFile(boxes,
                   {.saves = true,
                    .title = std::string(boxes.texts[Text::exportFlight]),
                    .present = std::string(boxes.texts[Text::flightFile]),
                    .folder = {},
                    .filter = std::string(boxes.texts[Text::sessionFilter]),
                    .extension = "ts"},
                   [&] { return bytes; });
}

} // namespace tarnel
