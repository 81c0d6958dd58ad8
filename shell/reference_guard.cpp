#include "shell/reference_guard.h"

namespace tarnel {

std::optional<Text> ReferenceGuard::look() {
    const bool beyond = sim.recording.sampleIndex() > sim.reference.size();
    if (sim.c_PractiseStopFly == 0)
        lost = false; // a flight has begun
    if (!beyond)
        ended = false;
    if (sim.c_PractiseStopFly == 0 || sim.reference.empty())
        return std::nullopt;
    if (beyond && !ended) {
        ended = true;
        return Text::practiceEnded;
    }
    if (!lost && sim.referenceReading.known && sim.referenceReading.distance > referenceLimit) {
        lost = true;
        return Text::practiceLost;
    }
    return std::nullopt;
}

} // namespace tarnel
