#include "shell/form_1.h"
#include "shell/text_format.h"

namespace tarnel {

void Form1::tick() {
    guardPractiseArea();
    guardReference();
    replay.echoLock();
    coupling.followFrequencies();
    exercise.followFlight();
    UserControl11.c_HDGchanged.setIfChanged(0);
    positions.echoSelectors();
    coupling.copyReceiverSelections();
    exercise.follow();
    exercise.coverReadings();
    debrief.follow();
    positions.followReceivers();
    coupling.coupleAutopilot();
    coupling.coupleHeadingBug();
    coupling.showDme();
    positions.followLocalizer();
    coupling.pinAltitude();
    replay.followBar();
    inst1.followKnob();
    coupling.coupleSettings();
    coupling.turnFloatingGyro();
    positions.feed();
    showState();
    boxes.forgetError();
}

/// What the strip, the buttons and the status bar tell of the state.
void Form1::showState() {
    windDesk.show();
    positions.echoChannelButtons(exercise.cover().instruments);
    showComment();
    comments.follow();
    stopwatch.show();
    readouts.show();
    replay.showClock();
    stationDesk.follow();
    usable.followHistory();
}

void Form1::showMode() {
    const Text mode = debrief.isOpen() ? Text::debriefMode
                      : flight.flies() ? Text::panelTraining
                                       : Text::panelPause;
    modePanel.setText(std::string(texts[mode]));
}

void Form1::guardPractiseArea() {
    if (!flight.leftPractiseArea())
        return;
    flight.stop();
    boxes.show(Text::windowTitle, std::string(texts[Text::outsidePracticeArea]));
}

/// A practice flight rests where its reference ends, with its debrief, and once when it is lost.
void Form1::guardReference() {
    if (!flight.flies() || !practice.practises())
        return;
    const std::optional<Text> rests = reference.look();
    if (!rests)
        return;
    flight.stop();
    boxes.show(Text::windowTitle, filledIn(texts[*rests], {texts[Text::startSim]}));
    if (*rests == Text::practiceEnded)
        debrief.open();
}

void Form1::showComment() {
    const std::string comment =
        exercise.questionOpen() ? std::string() : UserControl11.c_CurrentComment.get();
    comments.show(practice.beside(comment, !flight.flies() && !replay.runs()));
}

/// What a box tells stands behind it, and nothing is in the hand any more: the box gets its
/// release.
void Form1::letGo() {
    APControlFace1.mouseUp();
    try {
        UserControl11.mouse.up();
        showState();
    } catch (const RunTimeError&) {
        // It hinders the picture; the next tick tells it.
    }
}

} // namespace tarnel
