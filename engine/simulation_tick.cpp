#include "engine/user_control_2.h"

namespace tarnel {

void UserControl2::Timer1() {
    clocks.tickStopwatch();
    clocks.tickFlightTime(c_TAS > 0);
    scene.turnByTick();
    if (recording.tickIsSample()) {
        recorder.recordSample();
        scene.traceSample();
    }
    SimStep();
}

void UserControl2::SimStep() {
    scene.step(c_TimerEN == 1);
}

/// A start begins a flight, resumes one from a sample, or lets it go on.
void UserControl2::switchClock() {
    mouse.cancel();
    scene.picture.trace.clear();
    if (c_TimerEN == 1)
        history.clear();
    if (c_TimerEN == 1 && tape.resumeMode == ResumeMode::clear)
        recorder.beginFlight();
    else if (c_TimerEN == 1 && tape.resumeMode == ResumeMode::cut)
        replay.resume();
    scene.redrawTrace();
}

} // namespace tarnel
