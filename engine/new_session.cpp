#include "core/rounding.h"
#include "engine/user_control_2.h"

namespace tarnel {

void UserControl2::startSession() {
    if (!stopped())
        return;
    mouse.cancel();
    recording.clear();
    history.clear();
    chanceWinds.clear();
    forgetComments();
    reference.clear();
    referenceReading = {};
    clock = FlightClock{};
    publishStopwatch();
    publishFlightTime();
    takeWind({}, WindSource::none);
    c_WindSetEN.publish(0);
    publishWind();
    turnAircraft(0);
    resetView();
    standBelowStations();
    replaySample = 1;
    c_RepeatValue.publish(1);
    becomeNewSession();
}

/// It has no name of its own, and a save asks for one.
void UserControl2::becomeNewSession() {
    c_SessionFileName.setIfChanged(newSessionName);
    sessionNamedByUser.clear();
}

/// The aircraft stands in the middle of the framed chart's lower edge.
void UserControl2::standBelowStations() {
    aircraft.placeAt(
        view.plot.MapToGeo({toInt16(picture.size / 2), toInt16(picture.size - framedStartHeight)}));
    view.placeAircraft(aircraft);
    markFreshStart();
    redrawTrace();
    refresh();
}

void UserControl2::dropRecording() {
    recording.clear();
    history.clear();
    becomeNewSession();
    forgetComments();
    reference.clear();
    referenceReading = {};
    c_TraceBufferMax.publish(0);
    c_FlyEN.publish(0);
    resumeMode = ResumeMode::clear;
    redrawTrace();
}

} // namespace tarnel
