#include "shell/form_1.h"

#include <initializer_list>

namespace tarnel {

void Form1::startOrStop() {
    if (simStopped == 0)
        stopFlight();
    else
        startFlight();
}

void Form1::startFlight() {
    StopReplay();
    simStopped = 0;
    questionFlown = exerciseUp;
    replayPage.lock.set(0);
    stationPage.edit.set(0);
    startButton.setCaption(Text::stopSim);
    startButton.setTip(Text::stopSimTip);
    restOrFly(false);
    UserControl11.c_TimerEN = 1;
    modePanel.setText(text(Text::panelTraining));
}

/// A pause keeps the flight: the bar shows the newest sample, and the next start goes on from where
/// the aircraft is.
void Form1::stopFlight() {
    simStopped = 1;
    startButton.setCaption(Text::startSim);
    startButton.setTip(Text::startSimTip);
    restOrFly(true);
    UserControl11.c_TimerEN = 0;
    followReplayBar();
    replayPage.bar.setValue(UserControl11.c_TraceBufferMax);
    replayIndex = static_cast<std::int16_t>(replayPage.bar.value());
    modePanel.setText(text(Text::panelPause));
    if (practising || QAform1.c_QAFly > 0)
        UserControl11.c_TrackDelta = 3;
}

void Form1::restOrFly(bool resting) {
    replayPage.bar.setVisible(resting);
    if (!resting)
        commentPanel.mark.setVisible(false);
    pages.replay.choose();
    enableControls();
}

/// What may be used at rest or in flight, during an exercise, and while a question stands open.
void Form1::enableControls() {
    const bool resting = simStopped == 1;
    const bool open = questionOpen();
    // Going to a sample would put back the station that the author moves.
    const bool mayReplay = resting && !open && UserControl11.c_mapedit != 1;
    for (FormControl* control :
         std::initializer_list<FormControl*>{&replayPage.play, &replayPage.stop, &replayPage.loop,
                                             &replayPage.lock, &replayPage.bar})
        control->setEnabled(mayReplay);
    for (FormControl* control : std::initializer_list<FormControl*>{
             &replayPage.hide, &chartPage.hide, &chartPage.trace, &chartPage.vectors,
             &chartPage.centre, &chartPage.reset})
        control->setEnabled(!open);
    UserControl11.mouse.setLocked(open);
    UserControl11.setPlaceSecret(open);
    const bool fixed = open && QAform1.c_QAFly <= 0;
    for (const PositionLinks* links : {&positions.links2(), &positions.links3()})
        for (FormControl* control : std::initializer_list<FormControl*>{
                 &links->typeList, &links->channelButton, &links->overlayBox, &links->radialBox})
            control->setEnabled(!fixed);
    practicePanel.frame.setEnabled(resting);
    const bool free = resting && !exerciseUp;
    stationPage.edit.setEnabled(free);
    for (CommandButton* item : fileMenu.items())
        item->setEnabled(free);
    flightDesk.menu.setEnabled(free);
    for (CommandButton* item : exerciseMenu.items())
        item->setEnabled(free);
    const bool mayFly = !exerciseUp || (QAform1.c_QAFly > 0 && UserControl11.c_FlyEN == 1);
    startButton.setEnabled(mayFly && replayOn == 0);
}

void Form1::StopFly() {
    if (simStopped == 0)
        stopFlight();
}

void Form1::setRate(std::int16_t milliseconds) {
    UserControl11.c_TimerSIMrate = milliseconds;
}

/// Both boxes that hide the aircraft show the same.
void Form1::setHidden(bool hidden) {
    hideOn = hidden ? 1 : 0;
    replayPage.hide.show(hideOn);
    chartPage.hide.show(hideOn);
    hidePanel.setText(text(hidden ? Text::panelHideOn : Text::panelHideOff));
    UserControl11.c_AirplaneEN.setIfChanged(hidden ? 0 : 1);
    UserControl11.c_TraceEN.setIfChanged(hidden ? std::int16_t{0} : traceOn);
    applyVectors();
}

void Form1::applyTrace() {
    traceOn = chartPage.trace.value() == 1 ? 1 : 0;
    tracePanel.setText(text(traceOn ? Text::panelTraceOn : Text::panelTraceOff));
    if (hideOn == 0)
        UserControl11.c_TraceEN = traceOn;
}

void Form1::setVectorMode(int mode) {
    vectorMode = static_cast<std::int16_t>(mode);
    applyVectors();
}

void Form1::applyVectors() {
    static constexpr Text captions[] = {Text::panelVectorsOff, Text::panelVectorsType1,
                                        Text::panelVectorsType2};
    const std::int16_t shown = hideOn == 0 ? vectorMode : std::int16_t{0};
    UserControl11.c_SpeedVectorEN.setIfChanged(shown == 1 ? 1 : 0);
    UserControl11.c_TraceAheadEN.setIfChanged(shown == 2 ? 1 : 0);
    vectorsPanel.setText(text(captions[shown]));
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
