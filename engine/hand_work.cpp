#include "engine/hand_work.h"

namespace tarnel {

void HandWork::placeAircraft(ChartPoint point) {
    FlightScene& scene = given.scene;
    scene.aircraft.place = {point, {static_cast<double>(point.x), static_cast<double>(point.y)}};
    scene.aircraft.placeAt(scene.view.plot.MapToGeo(point));
    aircraftPlaced();
}

/// As a hand's place of the aircraft, which need not lie on the paper.
void HandWork::putAircraft(const SplitPosition& position) {
    given.scene.placeAircraft(position);
    aircraftPlaced();
}

void HandWork::aircraftPlaced() {
    given.tape.recording.giveUp();
    given.scene.picture.trace.clear();
    given.tape.resumeMode = ResumeMode::clear;
    given.recorder.forgetReference();
    given.replay.c_CurrentComment.setIfChanged({});
    if (given.placedByHand)
        given.placedByHand();
    given.scene.refresh();
}

void HandWork::placeAircraft(const GeoPosition& position) {
    FlightScene& scene = given.scene;
    scene.aircraft.placeAt(position);
    scene.view.centreOn(scene.aircraft.position);
    scene.view.placeAircraft(scene.aircraft);
    scene.redrawChart();
    given.recorder.markFreshStart();
    scene.redrawTrace();
    scene.refresh();
}

void HandWork::drawHeading(std::int16_t degrees) {
    given.scene.turnAircraft(degrees);
    if (given.headingDrawn)
        given.headingDrawn(degrees);
}

void HandWork::placeStation(Slot which, ChartPoint point) {
    moveStation(which, given.scene.view.plot.MapToGeo(point).split);
}

void HandWork::moveStation(Slot which, const SplitPosition& position) {
    given.scene.moveStation(which, position);
    given.recorder.renewFirstSample();
}

void HandWork::setWind(const Wind& next) {
    HandStep step = beginStep(Deed::setWind);
    step.joins = true;
    given.wind.chooseByHand(next);
    given.scene.refresh();
    finishStep(std::move(step));
}

void HandWork::drawWind(const Wind& next) {
    given.wind.takeByHand(next);
    given.scene.refresh();
}

void HandWork::switchWind() {
    HandStep step = beginStep(Deed::setWind);
    given.wind.takeAsked();
    given.scene.refresh();
    finishStep(std::move(step));
}

} // namespace tarnel
