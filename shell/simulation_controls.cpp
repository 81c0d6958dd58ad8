#include "shell/form_1.h"

namespace tarnel {

void Form1::startOrStop() {
    if (simStopped == 0)
        stopFlight();
    else
        startFlight();
}

void Form1::startFlight() {
    simStopped = 0;
    lockBox.set(0);
    lockBox.setEnabled(false);
    startButton.setCaption(Text::stopSim);
    startButton.setTip(Text::stopSimTip);
    UserControl11.c_TimerEN = 1;
    modePanel.setText(text(Text::panelTraining));
}

void Form1::stopFlight() {
    simStopped = 1;
    lockBox.setEnabled(true);
    startButton.setCaption(Text::startSim);
    startButton.setTip(Text::startSimTip);
    UserControl11.c_TimerEN = 0;
    modePanel.setText(text(Text::panelPause));
}

void Form1::StopFly() {
    if (simStopped == 0)
        stopFlight();
}

void Form1::setRate(std::int16_t milliseconds) {
    UserControl11.c_TimerSIMrate = milliseconds;
}

void Form1::setHidden(bool hidden) {
    hideOn = hidden ? 1 : 0;
    hidePanel.setText(text(hidden ? Text::panelHideOn : Text::panelHideOff));
    UserControl11.c_AirplaneEN = hidden ? 0 : 1;
    UserControl11.c_TraceEN = hidden ? std::int16_t{0} : traceOn;
}

void Form1::applyTrace() {
    traceOn = traceBox.value() == 1 ? 1 : 0;
    tracePanel.setText(text(traceOn ? Text::panelTraceOn : Text::panelTraceOff));
    if (hideOn == 0)
        UserControl11.c_TraceEN = traceOn;
}

/// Locked knobs and dials do nothing. The flags read the other way round: 1 lets the user act. The
/// autopilot stays free.
void Form1::setLocked(bool locked) {
    const std::int16_t free = locked ? 0 : 1;
    UserControl11.c_replayInstLock = locked ? 1 : 0;
    for (UserControl_1* instrument : {&inst2.instrument, &inst3.instrument})
        instrument->c_DisableKnobs = free;
    NAVControlFace1.c_LockSettings = free;
    NAVControlFace2.c_LockSettings = free;
    ADFControlFace1.c_LockSettings = free;
    DMEControlFace1.c_LockSettings = free;
}

void Form1::toggleStopwatch() {
    const bool running = UserControl11.c_Timer_on_off == 1;
    UserControl11.c_Timer_on_off = running ? 0 : 1;
    stopwatchStartButton.setCaption(running ? Text::stopwatchStart : Text::stopwatchStop);
    stopwatchStartButton.setTip(running ? Text::stopwatchStartTip : Text::stopwatchStopTip);
}

void Form1::resetStopwatch() {
    UserControl11.c_ResetTimer = 0;
}

void Form1::cycleRadialLines() {
    radialCycle = radialCycle >= 2 ? std::int16_t{0} : static_cast<std::int16_t>(radialCycle + 1);
    UserControl11.c_NAVRadCenter = radialCycle == 0 ? on : off;
    UserControl11.c_NAVRadBorder = radialCycle == 1 ? on : off;
}

} // namespace tarnel
