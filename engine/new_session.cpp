#include "engine/user_control_2.h"

namespace tarnel {

void UserControl2::startSession() {
    constexpr ChartPoint start{3500, 7500};
    if (!stopped())
        return;
    mouse.cancel();
    forgetComments();
    reference.clear();
    referenceReading = {};
    recording.clear();
    clock = FlightClock{};
    publishStopwatch();
    publishFlightTime();
    wind = {};
    c_WindSetEN.publish(0);
    publishWind();
    turnAircraft(0);
    resetView();
    placeAircraft(toPlain(view.plot.MapToGeo(start).split));
    replaySample = 1;
    c_RepeatValue.publish(1);
    sessionNamedByUser.clear();
}

void UserControl2::dropRecording() {
    forgetComments();
    reference.clear();
    referenceReading = {};
    recording.clear();
    c_TraceBufferMax.publish(0);
    c_FlyEN.publish(0);
    resumeMode = ResumeMode::clear;
    redrawTrace();
}

} // namespace tarnel
