#include "core/number_text.h"
#include "core/rounding.h"
#include "persistence/file_path.h"
#include "shell/form_1.h"

#include <array>

namespace tarnel {

namespace {

/// Miles from any DME at which a flight ends.
constexpr double practiseAreaLimit = 80.0;

} // namespace

void Form1::tick() {
    guardPractiseArea();
    echoReplayLock();
    coupling.followFrequencies();
    followExerciseFlight();
    UserControl11.c_HDGchanged.setIfChanged(0);
    positions.echoSelectors();
    coupling.copyReceiverSelections();
    followExercise();
    coverReadings();
    positions.followReceivers();
    coupling.coupleAutopilot();
    coupling.coupleHeadingBug();
    coupling.showDme();
    positions.followLocalizer();
    coupling.pinAltitude();
    blinkCommentMark();
    followReplayBar();
    inst1.followKnob();
    coupling.coupleSettings();
    coupling.turnFloatingGyro();
    positions.feed();
    showState();
    errorTold.clear();
}

/// What the strip, the buttons and the status bar tell of the state.
void Form1::showState() {
    showWind();
    showSessionName();
    positions.echoChannelButtons();
    showComment();
    followCommentStrip();
    showStopwatch();
    showFlightTime();
    showReadouts();
    showReplayClock();
    followStations();
    followHistory();
}

/// The file's name; its folders stand in the tool tip.
void Form1::showSessionName() {
    if (UserControl11.c_SessionFileName.get() == sessionShown)
        return;
    sessionShown = UserControl11.c_SessionFileName;
    sessionPanel.setText(portablePath(sessionShown).filename().string());
    sessionPanel.setTipText(sessionShown);
}

void Form1::guardPractiseArea() {
    if (simStopped != 0)
        return;
    for (const Slot slot : {Slot::vor1, Slot::vor2, Slot::localizer}) {
        if (UserControl11.slot(slot).dme <= practiseAreaLimit)
            continue;
        stopFlight();
        showBox(text(Text::windowTitle), text(Text::outsidePracticeArea));
        return;
    }
}

void Form1::echoReplayLock() {
    replayPage.lock.set(UserControl11.c_replayInstLock);
}

void Form1::showStopwatch() {
    const std::array<std::int16_t, 2> now{UserControl11.c_ApMinutes, UserControl11.c_ApSeconds};
    if (now == stopwatchShown)
        return;
    stopwatchShown = now;
    tvsmtimer1.minsec = zeroPadded(now[0], 2) + "." + zeroPadded(now[1], 2);
}

void Form1::showFlightTime() {
    const std::array<std::int16_t, 3> now{UserControl11.c_ApHours2, UserControl11.c_ApMinutes2,
                                          UserControl11.c_ApSeconds2};
    if (now == flightTimeShown)
        return;
    flightTimeShown = now;
    flightTimePanel.setText(numberText(std::int64_t{now[0]}) + text(Text::unitHours) +
                            numberText(std::int64_t{now[1]}) + text(Text::unitMinutes) +
                            numberText(std::int64_t{now[2]}) + text(Text::unitSeconds));
}

void Form1::showReadouts() {
    const std::array<std::int16_t, 2> now{UserControl11.c_TAS, UserControl11.Turn_Rate};
    if (now == readoutsShown)
        return;
    readoutsShown = now;
    speedReadout.setText(numberText(std::int64_t{now[0]}));
    turnReadout.setText(numberText(std::int64_t{now[1]}));
}

} // namespace tarnel
