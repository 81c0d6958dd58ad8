#include "cpu_seconds.h"
#include "shell/application_folder.h"
#include "shell/form_1.h"
#include "silent_world.h"
#include "strings/string_table.h"

#include <cstdio>

namespace {

using namespace tarnel;

constexpr int ticksPerSample = 4;
constexpr int couplingTicks = 3;
constexpr double most = 20;         ///< times one step
constexpr double mostOfACore = 0.2; ///< at `goesPerSecond`
constexpr double goesPerSecond = 60;
constexpr double leastTimesRealTime = 5000;

template <class Action>
double secondsOf(int times, Action action) {
    const double start = cpuSeconds();
    for (int i = 0; i < times; ++i)
        action(i);
    return (cpuSeconds() - start) / times;
}

bool told(const char* what, double value, double bound, bool good) {
    std::printf("%s: %.3g (bound %.3g) %s\n", what, value, bound, good ? "" : "MISSED");
    return good;
}

/// Flies on in turns until sample `last`, with the panel coupled.
void fly(Form1& form, int last) {
    for (int tick = 0; form.UserControl11.c_TraceBufferMax < last; ++tick) {
        if (tick % 720 == 0)
            form.coupling.setHeadingBug(static_cast<std::int16_t>(tick / 720 * 100 % 360));
        form.simulationTimer();
        for (int i = 0; i < couplingTicks; ++i)
            form.Timer1();
    }
}

/// What a tick with a sample and its trace costs more than one without, in steps.
bool sampleWithTrace(Form1& form) {
    UserControl2& sim = form.UserControl11;
    const double step = secondsOf(4000, [&](int) { sim.SimStep(); });
    const auto ticks = [&](std::int16_t trace) {
        sim.c_TraceEN = trace;
        return secondsOf(200 * ticksPerSample, [&](int) { sim.Timer1(); }) * ticksPerSample;
    };
    const double bare = ticks(0);
    const double traced = ticks(1);
    const double sample = (traced - bare) / step + bare / ticksPerSample / step;
    return told("a sample with its trace at 5,000 samples, in steps", sample, most, sample <= most);
}

bool goingToASample(Form1& form) {
    form.startButton.click();
    form.replayPage.lock.click();
    const int samples = form.UserControl11.c_TraceBufferMax;
    const double one = secondsOf(1200, [&](int i) {
        form.replayPage.bar.scrollTo(i * 7919 % samples + 1);
        form.Timer1();
    });
    const double share = one * goesPerSecond;
    return told("going to a sample 60 times a second, share of a core", share, mostOfACore,
                share <= mostOfACore);
}

} // namespace

int main() {
    SilentWorld world;
    Form1 form(englishTable(), world, applicationFolder());
    form.startButton.click();
    const double start = cpuSeconds();
    constexpr int longest = Recording::fullAt - 1;
    fly(form, longest);
    const double ratio = longest * ticksPerSample / 3.0 / (cpuSeconds() - start);
    bool good = told("a recorded flight of 5,979 samples, times real time", ratio,
                     leastTimesRealTime, ratio >= leastTimesRealTime);
    form.startButton.click();
    form.replayPage.bar.scrollTo(5000);
    form.startButton.click();
    good = sampleWithTrace(form) && good;
    good = goingToASample(form) && good;
    return good ? 0 : 1;
}
