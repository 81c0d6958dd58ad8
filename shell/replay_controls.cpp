#include "core/number_text.h"
#include "core/rounding.h"
#include "shell/form_1.h"

#include <algorithm>

namespace tarnel {

namespace {

constexpr std::int16_t quarterSteps = 4;

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
    replayPage.lock.onClick = [this] { coupling.setLocked(replayPage.lock.value() == 1); };
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

} // namespace tarnel
