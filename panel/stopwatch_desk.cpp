#include "panel/stopwatch_desk.h"

#include "core/number_text.h"

namespace tarnel {

StopwatchDesk::StopwatchDesk(UserControl2& simulation, PanelControls& controls)
    : sim(simulation), panel(controls) {
    panel.stopwatchStartButton.onClick = [this] { startOrStop(); };
    panel.stopwatchResetButton.onClick = [this] { sim.c_ResetTimer = 0; };
}

void StopwatchDesk::startOrStop() {
    const bool running = sim.c_Timer_on_off == 1;
    sim.c_Timer_on_off = running ? 0 : 1;
    CommandButton& button = panel.stopwatchStartButton;
    button.setCaption(running ? Text::stopwatchStart : Text::stopwatchStop);
    button.setTip(running ? Text::stopwatchStartTip : Text::stopwatchStopTip);
}

void StopwatchDesk::show() {
    const std::array<std::int16_t, 2> now{sim.c_ApMinutes, sim.c_ApSeconds};
    if (now == shown)
        return;
    shown = now;
    panel.tvsmtimer1.minsec = zeroPadded(now[0], 2) + "." + zeroPadded(now[1], 2);
}

} // namespace tarnel
