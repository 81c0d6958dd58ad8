#include "core/number_text.h"
#include "core/rounding.h"
#include "shell/form_1.h"

#include <algorithm>

namespace tarnel {

namespace {

constexpr std::int16_t quarterSteps = 4;

bool isInstrument(std::int16_t type) {
    return type >= adf && type <= dg;
}

std::string timeOf(const Sample& sample) {
    std::string text =
        zeroPadded(sample.traceFlightMinutes, 2) + ":" + zeroPadded(sample.traceFlightSeconds, 2);
    if (sample.traceFlightHours > 0)
        text = numberText(std::int64_t{sample.traceFlightHours}) + ":" + text;
    return text;
}

} // namespace

void Form1::connectReplay() {
    replayPage.play.onClick = [this] { startReplay(); };
    replayPage.stop.onClick = [this] { stopReplay(); };
    replayPage.bar.onScroll = [this] { moveReplayBar(); };
    replayPage.hide.onClick = [this] { setHidden(replayPage.hide.value() == 1); };
    replayPage.lock.onClick = [this] { setLocked(replayPage.lock.value() == 1); };
}

void Form1::startReplay() {
    if (UserControl11.c_TraceBufferMax < 1) {
        StopReplay();
        return;
    }
    lockReplay();
    replaySubStep = 0;
    UserControl11.c_ReplayInterpolation = 0;
    if (replayIndex >= UserControl11.c_TraceBufferMax)
        replayIndex = 0;
    replayOn = -1;
    enableControls();
}

void Form1::stopReplay() {
    replaySubStep = 0;
    UserControl11.c_ReplayInterpolation = 0;
    replayOn = 0;
    enableControls();
}

void Form1::StopReplay() {
    replayPage.stop.show();
    stopReplay();
}

/// The user's hand on the bar.
void Form1::moveReplayBar() {
    lockReplay();
    scrollReplay();
}

/// A flight that begins to be looked at is locked, so that looking changes nothing in it. Who wants
/// to write over it unlocks it then.
void Form1::lockReplay() {
    if (!UserControl11.inReplay() || replayIndex == 0)
        replayPage.lock.set(1);
}

void Form1::scrollReplay() {
    replayIndex = static_cast<std::int16_t>(replayPage.bar.value());
    UserControl11.c_ReplayInterpolation = 0;
    UserControl11.c_RepeatValue = replayIndex;
}

/// A full step shows the next sample; the three quarters behind it fly on from where the aircraft
/// is.
void Form1::pumpReplay() {
    replaySubStep = static_cast<std::int16_t>((replaySubStep + 1) % quarterSteps);
    if (replaySubStep == 1) {
        stepReplay();
    } else if (replayPage.interpolate.value() == 1 && replayIndex > 0 &&
               replayIndex < UserControl11.c_TraceBufferMax) {
        UserControl11.c_ReplayInterpolation = replaySubStep == 2 ? 2 : 3;
        UserControl11.c_RepeatValue = replayIndex;
    }
}

void Form1::stepReplay() {
    ++replayIndex;
    if (replayIndex > UserControl11.c_TraceBufferMax) {
        if (replayPage.loop.value() == 1) {
            replayIndex = 1;
        } else {
            replayIndex = std::max<std::int16_t>(1, UserControl11.c_TraceBufferMax);
            replayPage.lock.set(1);
            StopReplay();
        }
    }
    replayPage.bar.setValue(replayIndex);
    scrollReplay();
}

/// The bar's range, and a sample that a loaded session asks for.
void Form1::followReplayBar() {
    UserControl2& sim = UserControl11;
    replayPage.bar.setMax(sim.c_TraceBufferMax);
    if (sim.c_HscrollRepeatValue == 0)
        return;
    replayPage.bar.setValue(sim.c_HscrollRepeatValue);
    sim.c_HscrollRepeatValue = 0;
    if (sim.stopped())
        scrollReplay();
}

void Form1::showReplayClock() {
    const UserControl2& sim = UserControl11;
    const std::array<std::int16_t, 2> now{sim.presentSampleIndex(), sim.c_TraceBufferMax};
    if (now == replayClockShown || sim.c_TimerEN == 1)
        return;
    replayClockShown = now;
    replayPage.clock.setText(timeOf(sim.recording.at(now[0])) + " / " +
                             timeOf(sim.recording.at(now[1])));
}

/// Copies what a locked replay has restored onto the panel.
void Form1::pushPanelState() {
    UserControl2& sim = UserControl11;
    sim.c_replayActive = 0;
    writeHeadingBug(toInt16(intoCircle(sim.c_HDGbug)));
    APControlFace1.c_HDG = intoCircle(sim.c_APhdg);
    APControlFace1.c_HDGChange = 0;
    APControlFace1.c_TAS = static_cast<double>(sim.c_APtas);
    APControlFace1.c_ALT = static_cast<double>(sim.c_APalt);
    NAVControlFace1.c_SetFreq = sim.c_NAV1freq.get();
    NAVControlFace2.c_SetFreq = sim.c_NAV2freq.get();
    ADFControlFace1.c_SetFreq = sim.c_ADFfreq.get();
    DMEControlFace1.c_SetFreq = sim.c_DMEfreq.get();
    for (const PositionLinks* links : {&inst2Links, &inst3Links})
        pushPosition(*links);
    showDme(); // of the frequency that stands there now
}

void Form1::pushPosition(const PositionLinks& links) {
    InstrumentPosition& position = links.position;
    UserControl_1& instrument = position.instrument;
    instrument.c_ADFCardselect.setIfChanged(links.cardSelect);
    position.navSel = links.navSelect;
    instrument.c_NAVselect.setIfChanged(links.navSelect);
    if (isInstrument(links.instType)) {
        position.setType(links.instType);
        instrument.Display.setIfChanged(links.instType);
    }
    // A course recorded under a turned chart is a sum and may lie above 360.
    position.setDial(intoCircle(links.courseOnChart));
}

} // namespace tarnel
