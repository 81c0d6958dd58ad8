#include "core/number_text.h"
#include "core/rounding.h"
#include "persistence/file_path.h"
#include "shell/form_1.h"
#include "shell/needle_sources.h"

#include <algorithm>
#include <cmath>

namespace tarnel {

namespace {

/// Miles from any DME at which a flight ends.
constexpr double practiseAreaLimit = 80.0;
/// Feet at which the simulated altitude stays, whatever the autopilot says.
constexpr double fixedAltitude = 6000.0;

} // namespace

void Form1::tick() {
    guardPractiseArea();
    echoReplayLock();
    followFrequencies();
    followExerciseFlight();
    UserControl11.c_HDGchanged.setIfChanged(0);
    echoSelectors();
    copyReceiverSelections();
    followExercise();
    coverReadings();
    followInstrumentSelectors();
    coupleAutopilot();
    coupleHeadingBug();
    showDme();
    locCourse = toInt16(UserControl11.c_LocCrs1);
    pinAltitude();
    blinkCommentMark();
    followReplayBar();
    inst1.followKnob();
    if (UserControl11.c_replayActive == 1)
        pushPanelState();
    else
        pullPanelState();
    turnFloatingGyro();
    const FeedSources sources = feedSources();
    feedInstrument(inst2Links, sources);
    feedInstrument(inst3Links, sources);
    showState();
    errorTold.clear();
}

/// What the strip, the buttons and the status bar tell of the state.
void Form1::showState() {
    showWind();
    showSessionName();
    echoChannelButtons();
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

/// Gives a frequency of the chart to every face that lists it; each face then latches its selection
/// anew.
void Form1::followFrequencies() {
    const auto follow = [this](Slot slot, auto frequencyOf, auto&... faces) {
        const std::string& frequency = UserControl11.slot(slot).frequency.get();
        const auto write = [&](auto& face) {
            frequencyOf(face) = frequency;
            face.c_SetFreq = face.c_SetFreq.get();
        };
        const auto differs = [&](auto& first, auto&...) {
            return frequencyOf(first).get() != frequency;
        };
        if (differs(faces...))
            (write(faces), ...);
    };
    const auto first = [](auto& face) -> auto& {
        return face.c_Freq1;
    };
    const auto second = [](auto& face) -> auto& {
        return face.c_Freq2;
    };
    const auto third = [](auto& face) -> auto& {
        return face.c_Freq3;
    };
    follow(Slot::vor1, first, NAVControlFace1, NAVControlFace2, DMEControlFace1);
    follow(Slot::vor2, second, NAVControlFace1, NAVControlFace2, DMEControlFace1);
    follow(Slot::localizer, third, NAVControlFace1, NAVControlFace2, DMEControlFace1);
    follow(Slot::ndb1, first, ADFControlFace1);
    follow(Slot::ndb2, second, ADFControlFace1);
}

void Form1::echoSelectors() {
    if (inst2.type == inst2.typeSeen && inst3.type == inst3.typeSeen)
        return;
    inst3TypeList.select(inst3.type - 1);
    inst2TypeList.select(inst2.type - 1);
    inst2.typeSeen = inst2.type;
    inst3.typeSeen = inst3.type;
}

/// In a locked replay the DME stays on what was recorded, wherever its selector stands.
void Form1::copyReceiverSelections() {
    if (UserControl11.inReplay() && UserControl11.c_replayInstLock == 1)
        return;
    DMEControlFace1.c_NAV1f = toInt16(NAVControlFace1.c_SetFreq.get());
    DMEControlFace1.c_NAV2f = toInt16(NAVControlFace2.c_SetFreq.get());
}

void Form1::followInstrumentSelectors() {
    inst3.navSel = inst3.instrument.c_NAVselect;
    inst2.navSel = inst2.instrument.c_NAVselect;
}

/// While a replay rests on a sample, speed and turn are the sample's.
void Form1::coupleAutopilot() {
    const bool live = !UserControl11.inReplay();
    if (live)
        UserControl11.Turn_Rate.setIfChanged(APControlFace1.c_APTurnrate);
    APControlFace1.c_ActualHDG = UserControl11.c_HDG.get();
    if (live)
        UserControl11.c_TAS.setIfChanged(toInt16(APControlFace1.c_TAS));
    UserControl11.c_Altitude.setIfChanged(APControlFace1.c_ALT);
}

/// Keeps the bug equal on the autopilot, both instruments, the floating gyro and the simulation.
void Form1::coupleHeadingBug() {
    if (APControlFace1.c_HDGChange == 1) {
        writeHeadingBug(toInt16(APControlFace1.c_HDG));
        APControlFace1.c_HDGChange = 0;
    }
    for (UserControl_1* source : {&inst3.instrument, &inst2.instrument, &UserControl_DG}) {
        if (source->c_HDGbugChange != 1)
            continue;
        setHeadingBug(source->c_HDGbug);
        source->c_HDGbugChange = 0;
    }
    if (UserControl11.c_replayActive != 1)
        UserControl11.c_HDGbug.setIfChanged(inst2.instrument.c_HDGbug);
    UserControl_DG.c_HDGbug.setIfChanged(UserControl11.c_HDGbug);
}

void Form1::writeHeadingBug(std::int16_t heading) {
    for (UserControl_1* instrument : {&inst2.instrument, &inst3.instrument, &UserControl_DG})
        instrument->c_HDGbug.setIfChanged(heading);
    UserControl11.c_HDGbug.setIfChanged(heading);
}

void Form1::setHeadingBug(std::int16_t heading) {
    APControlFace1.c_HDG = static_cast<double>(heading);
    writeHeadingBug(heading);
}

/// The distance of the selected DME, as far as its digits go. The second one shows the ground speed
/// of the localizer's.
void Form1::showDme() {
    const auto source = dmeSource(DMEControlFace1, UserControl11);
    if (!source)
        return;
    double tenths = 0;
    std::int16_t knots = 0;
    if (source->received) {
        const Slot speed = source->slot == Slot::vor1 ? Slot::vor1 : Slot::localizer;
        tenths = std::floor(UserControl11.slot(source->slot).dme * 10);
        knots = UserControl11.slot(speed).dmeGroundSpeed;
    }
    if (tenths > DMEControlFace::longest)
        tenths = DMEControlFace::noSignal;
    DMEControlFace1.c_DMEnm.setIfChanged(toInt16(tenths));
    DMEControlFace1.c_DMEkt.setIfChanged(knots);
}

void Form1::pinAltitude() {
    UserControl11.c_Altitude.setIfChanged(fixedAltitude);
}

/// An instrument without a course has no such button; under a cover there is none either.
void Form1::echoChannelButtons() {
    const auto echo = [this](CommandButton& button, const InstrumentPosition& position) {
        button.setVisible(showsCourse(position) && instruments.visible());
        button.setCaption(holdsAnObs(position) ? Text::channelObs : Text::channelNav);
    };
    echo(inst1ChannelButton, inst1);
    echo(inst2ChannelButton, inst2);
    echo(inst3ChannelButton, inst3);
}

/// Copies what the user set on the panel into the simulation, which records it.
void Form1::pullPanelState() {
    UserControl2& sim = UserControl11;
    sim.c_NAV1freq.setIfChanged(toInt16(NAVControlFace1.c_SetFreq.get()));
    sim.c_NAV2freq.setIfChanged(toInt16(NAVControlFace2.c_SetFreq.get()));
    sim.c_ADFfreq.setIfChanged(toInt16(ADFControlFace1.c_SetFreq.get()));
    sim.c_DMEfreq.setIfChanged(toInt16(DMEControlFace1.c_SetFreq.get()));
    sim.c_APhdg.setIfChanged(toInt16(APControlFace1.c_HDG));
    sim.c_APtas.setIfChanged(toInt16(APControlFace1.c_TAS));
    constexpr double highestRecorded = 32767;
    sim.c_APalt.setIfChanged(toInt16(std::min(APControlFace1.c_ALT.get(), highestRecorded)));
    for (const PositionLinks* links : {&inst2Links, &inst3Links}) {
        links->cardSelect.setIfChanged(links->position.instrument.c_ADFCardselect);
        links->navSelect.setIfChanged(links->position.navSel);
        links->position.followKnob();
    }
}

void Form1::turnFloatingGyro() {
    UserControl_DG.angle = toInt32(360 - UserControl11.c_HDG);
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
