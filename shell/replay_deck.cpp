#include "shell/replay_deck.h"

#include "core/number_text.h"

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

ReplayDeck::ReplayDeck(UserControl2& simulation, ReplayPage& controls)
    : sim(simulation), page(controls) {
    page.play.onClick = [this] { play(); };
    page.stop.onClick = [this] { halt(); };
    page.bar.onScroll = [this] { moveBar(); };
}

void ReplayDeck::play() {
    if (sim.c_TraceBufferMax < 1) {
        stop();
        return;
    }
    lock();
    quartersGone = 0;
    sim.c_ReplayInterpolation = 0;
    if (index >= sim.c_TraceBufferMax)
        index = 0;
    running = true;
    changed();
}

void ReplayDeck::halt() {
    quartersGone = 0;
    sim.c_ReplayInterpolation = 0;
    running = false;
    changed();
}

void ReplayDeck::stop() {
    page.stop.show();
    halt();
}

/// The user's hand on the bar.
void ReplayDeck::moveBar() {
    lock();
    scroll();
}

void ReplayDeck::goTo(int sample) {
    page.bar.setValue(sample);
    moveBar();
}

/// A flight that begins to be looked at is locked, so that looking changes nothing in it. Who wants
/// to write over it unlocks it then.
void ReplayDeck::lock() {
    if (!sim.inReplay() || index == 0)
        page.lock.set(1);
}

void ReplayDeck::scroll() {
    index = static_cast<std::int16_t>(page.bar.value());
    sim.c_ReplayInterpolation = 0;
    sim.c_RepeatValue = index;
}

/// A full step shows the next sample; the three quarters behind it fly on from where the aircraft
/// is.
void ReplayDeck::pump() {
    quartersGone = static_cast<std::int16_t>((quartersGone + 1) % quarterSteps);
    if (quartersGone == 1) {
        step();
    } else if (page.interpolate.value() == 1 && index > 0 && index < sim.c_TraceBufferMax) {
        sim.c_ReplayInterpolation = quartersGone == 2 ? 2 : 3;
        sim.c_RepeatValue = index;
    }
}

void ReplayDeck::step() {
    ++index;
    if (index > sim.c_TraceBufferMax) {
        if (page.loop.value() == 1) {
            index = 1;
        } else {
            index = std::max<std::int16_t>(1, sim.c_TraceBufferMax);
            page.lock.set(1);
            stop();
        }
    }
    page.bar.setValue(index);
    scroll();
}

void ReplayDeck::echoLock() {
    page.lock.set(sim.c_replayInstLock);
}

void ReplayDeck::followBar() {
    page.bar.setMax(sim.c_TraceBufferMax);
    if (sim.c_HscrollRepeatValue == 0)
        return;
    page.bar.setValue(sim.c_HscrollRepeatValue);
    sim.c_HscrollRepeatValue = 0;
    if (sim.stopped())
        scroll();
}

void ReplayDeck::standAt(std::int16_t sample) {
    followBar();
    page.bar.setValue(sample);
    index = sample;
}

void ReplayDeck::standAtNewest() {
    followBar();
    page.bar.setValue(sim.c_TraceBufferMax);
    index = static_cast<std::int16_t>(page.bar.value());
}

void ReplayDeck::showClock() {
    const std::array<std::int16_t, 2> now{sim.presentSampleIndex(), sim.c_TraceBufferMax};
    if (now == clockShown || sim.c_TimerEN == 1)
        return;
    clockShown = now;
    page.clock.setText(timeOf(sim.recording.at(now[0])) + " / " + timeOf(sim.recording.at(now[1])));
}

} // namespace tarnel
