#include "shell/status_readouts.h"

#include "core/number_text.h"
#include "persistence/file_path.h"
#include "platform/path_text.h"

namespace tarnel {

void StatusReadouts::show() {
    showSessionName();
    showFlightTime();
    showMotion();
}

/// The file's name; its folders stand in the tool tip.
void StatusReadouts::showSessionName() {
    if (sim.c_SessionFileName.get() == sessionShown)
        return;
    sessionShown = sim.c_SessionFileName;
    strip.sessionPanel.setText(textOf(portablePath(sessionShown).filename()));
    strip.sessionPanel.setTipText(sessionShown);
}

void StatusReadouts::showFlightTime() {
    const std::array<std::int16_t, 3> now{sim.c_ApHours2, sim.c_ApMinutes2, sim.c_ApSeconds2};
    if (now == timeShown)
        return;
    timeShown = now;
    const auto part = [this](std::int16_t number, Text unit) {
        return numberText(std::int64_t{number}) + std::string(texts[unit]);
    };
    strip.flightTimePanel.setText(part(now[0], Text::unitHours) + part(now[1], Text::unitMinutes) +
                                  part(now[2], Text::unitSeconds));
}

void StatusReadouts::showMotion() {
    const std::array<std::int16_t, 2> now{sim.c_TAS, sim.Turn_Rate};
    if (now == motionShown)
        return;
    motionShown = now;
    strip.speedReadout.setText(numberText(std::int64_t{now[0]}));
    strip.turnReadout.setText(numberText(std::int64_t{now[1]}));
}

} // namespace tarnel
