#include "engine/flight_recorder.h"

#include "core/rounding.h"
#include "core/sailing.h"

namespace tarnel {

/// Courses are kept from north, as they stand on the dial, free of what a turned chart's heading
/// leaves behind the sixth decimal; they may lie above 360 degrees.
double FlightRecorder::recorded(setting::Course, const Property<double>& course) const {
    constexpr int decimals = 6;
    const double turned = given.chart.c_MAPnorthUP == 1 ? 0 : given.panel.c_HDG.get();
    return roundTo(turned + course, decimals);
}

Sample FlightRecorder::presentSample() const {
    const Aircraft& aircraft = given.scene.aircraft;
    const Wind& wind = given.wind.wind;
    const FlightClock& clock = given.clocks.clock;
    const PanelProperties& panel = given.panel;
    Sample sample;
#define FIELD(name, type, rule, value) sample.name = static_cast<type>(value);
#define SETTING(name, type, rule, kind, property, control)                                         \
    sample.name = recorded(setting::kind(), panel.property);
#define STATIONS()                                                                                 \
    for (std::size_t i = 0; i < slotCount; ++i)                                                    \
        sample.traceStations[i] = toPlain(given.scene.stations[i].position);
#include "core/sample_rows.def"
    return sample;
}

void FlightRecorder::copySettings(Sample& sample) const {
#define SETTING(name, type, rule, kind, property, control)                                         \
    if constexpr (setting::kind::withLock)                                                         \
        sample.name = recorded(setting::kind(), given.panel.property);
#include "core/sample_rows.def"
}

void FlightRecorder::recordSample() {
    Recording& recording = given.tape.recording;
    if (given.panel.c_TAS > 0)
        tapeRunsOut(recording.advance());
    if (recording.sampleIndex() == 0)
        recording.setNewest(1);
    const std::int16_t index = recording.sampleIndex();
    recording.write(presentSample(), given.comments.comments.selectedCommentIndex);
    compareWithReference(index);
    given.comments.show(index);
    given.chart.c_TraceBufferMax.publish(index);
}

void FlightRecorder::tapeRunsOut(BufferWarning warning) {
    if (warning == BufferWarning::full) {
        given.clocks.resetFlightTime();
        given.session.becomeNew();
    }
    if (warning != BufferWarning::none)
        given.messages.bufferWarning(warning);
}

void FlightRecorder::compareWithReference(std::int16_t index) {
    const GeoPosition target = reference.at(index);
    reading = {};
    if (target.latitude == 0) {
        given.panel.c_PractiseStopFly.publish(1);
        return;
    }
    const double distance = CourseAndDistance(given.scene.aircraft.published(), target).distance;
    reading = {true, distance, toInt16(distance), referenceLamps(distance)};
    if (distance > referenceLimit)
        given.panel.c_PractiseStopFly.publish(1);
}

void FlightRecorder::forgetReference() {
    reference.clear();
    reading = {};
}

void FlightRecorder::markFreshStart() {
    given.tape.resumeMode = ResumeMode::clear;
    given.tape.recording.setNewest(1);
    given.tape.recording.edit(1) = presentSample();
    given.chart.c_TraceBufferMax.publish(1);
}

void FlightRecorder::renewFirstSample() {
    if (given.tape.resumeMode == ResumeMode::clear && given.tape.recording.sampleIndex() <= 1)
        markFreshStart();
}

/// An earlier flight takes its comments along, but not one that is just being marked.
void FlightRecorder::beginFlight() {
    FlightTape& tape = given.tape;
    const bool followsFlight = tape.recording.sampleIndex() > 1;
    tape.recording.clear();
    given.session.becomeNew();
    if (followsFlight && given.comments.comments.selectedCommentIndex == noComment)
        given.comments.forget();
    reading = {};
    given.panel.c_PractiseStopFly.publish(0);
    tape.resumeMode = ResumeMode::goOn;
    given.clocks.restart();
    tape.recording.edit(1) = presentSample();
    given.chart.c_TraceBufferMax.publish(1);
}

} // namespace tarnel
