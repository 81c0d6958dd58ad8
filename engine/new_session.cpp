#include "engine/new_session.h"

#include "chart/chart_framing.h"
#include "core/rounding.h"

namespace tarnel {

void NewSession::start() {
    given.tape.recording.clear();
    given.history.clear();
    given.wind.forgetChanceWinds();
    given.comments.forget();
    given.recorder.forgetReference();
    given.clocks.restart();
    given.wind.calm();
    given.scene.refresh();
    given.scene.turnAircraft(0);
    given.sheet.resetView();
    standBelowStations();
    given.tape.replaySample = 1;
    given.replay.c_RepeatValue.publish(1);
    given.session.becomeNew();
}

/// The aircraft stands in the middle of the framed chart's lower edge.
void NewSession::standBelowStations() {
    FlightScene& scene = given.scene;
    const double size = scene.picture.size;
    const ChartPoint start{toInt16(size / 2), toInt16(size - framedStartHeight)};
    scene.placeAircraft(scene.view.plot.MapToGeo(start));
    given.recorder.markFreshStart();
    scene.redrawTrace();
    scene.refresh();
}

void NewSession::dropRecording() {
    given.tape.recording.clear();
    given.history.clear();
    given.session.becomeNew();
    given.comments.forget();
    given.recorder.forgetReference();
    given.chart.c_TraceBufferMax.publish(0);
    given.flight.c_FlyEN.publish(0);
    given.tape.resumeMode = ResumeMode::clear;
    given.scene.redrawTrace();
}

} // namespace tarnel
