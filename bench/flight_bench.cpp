#include "cpu_seconds.h"
#include "shell/application_folder.h"
#include "shell/form_1.h"
#include "silent_world.h"
#include "strings/string_table.h"

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

using namespace tarnel;

constexpr int simulatedSeconds = 3600;
constexpr int ticksPerSecond = 3;
constexpr int couplingTicks = 3;
constexpr int runs = 7;
constexpr double leastTimesRealTime = 10000;

/// An hour of turns about the stations with both instruments fed. Returns its CPU seconds.
double flyAnHour() {
    SilentWorld world;
    Form1 form(englishTable(), world, applicationFolder());
    form.startButton.click();
    const double start = cpuSeconds();
    for (int tick = 0; tick < simulatedSeconds * ticksPerSecond; ++tick) {
        if (tick % 720 == 0)
            form.coupling.setHeadingBug(static_cast<std::int16_t>(tick / 720 * 100 % 360));
        form.simulationTimer();
        for (int i = 0; i < couplingTicks; ++i)
            form.Timer1();
    }
    const double used = cpuSeconds() - start;
    return form.flight.flies() ? used : 1e9;
}

} // namespace

int main() {
    std::vector<double> seconds;
    for (int run = 0; run < runs; ++run)
        seconds.push_back(flyAnHour());
    std::sort(seconds.begin(), seconds.end());
    const double median = seconds[runs / 2];
    const double ratio = simulatedSeconds / median;
    std::printf("a simulated hour without a window: %.3f s of CPU, %.0f times real time"
                " (at least %.0f) %s\n",
                median, ratio, leastTimesRealTime, ratio >= leastTimesRealTime ? "" : "MISSED");
    return ratio >= leastTimesRealTime ? 0 : 1;
}
