#include "chart/trace_dots.h"
#include "core/rounding.h"
#include "engine/user_control_2.h"

namespace tarnel {

namespace {

/// `c_TraceEN`: wipes the trace with the next sample.
constexpr std::int16_t wipeTrace = 2;

} // namespace

/// Courses are kept from north, as they stand on the dial, free of what a turned chart's heading
/// leaves behind the sixth decimal; they may lie above 360 degrees.
double UserControl2::recorded(setting::Course, const Property<double>& course) const {
    constexpr int decimals = 6;
    const double turned = c_MAPnorthUP == 1 ? 0 : c_HDG.get();
    return roundTo(turned + course, decimals);
}

Sample UserControl2::presentSample() const {
    Sample sample;
#define FIELD(name, type, rule, value) sample.name = static_cast<type>(value);
#define SETTING(name, type, rule, kind, property, control)                                         \
    sample.name = recorded(setting::kind(), property);
#define STATIONS()                                                                                 \
    for (std::size_t i = 0; i < slotCount; ++i)                                                    \
        sample.traceStations[i] = toPlain(stations[i].position);
#include "core/sample_rows.def"
    return sample;
}

void UserControl2::copySettings(Sample& sample) const {
#define SETTING(name, type, rule, kind, property, control)                                         \
    if constexpr (setting::kind::withLock)                                                         \
        sample.name = recorded(setting::kind(), property);
#include "core/sample_rows.def"
}

void UserControl2::recordSample() {
    if (c_TAS > 0) {
        const BufferWarning warning = recording.advance();
        if (warning == BufferWarning::full) {
            clock.resetFlightTime();
            publishFlightTime();
            becomeNewSession();
        }
        if (warning != BufferWarning::none)
            messages.bufferWarning(warning);
    }
    if (recording.sampleIndex() == 0)
        recording.setNewest(1);
    const std::int16_t index = recording.sampleIndex();
    recording.write(presentSample(), comments.selectedCommentIndex);
    compareWithReference(index);
    showComment(index);
    c_TraceBufferMax.publish(index);
    if (c_TraceEN == wipeTrace)
        DeleteTrace(picture);
    if (!traceShown())
        return;
    DeleteTrace(picture);
    DrawTrace2(picture, view, recording, aircraft.trueHeading);
}

/// Compares the aircraft's place with that of the reference at the same sample.
void UserControl2::compareWithReference(std::int16_t index) {
    const GeoPosition target = reference.at(index);
    referenceReading = {};
    if (target.latitude == 0) {
        c_PractiseStopFly.publish(1);
        return;
    }
    const double distance = CourseAndDistance(aircraft.published(), target).distance;
    referenceReading = {true, distance, toInt16(distance), referenceLamps(distance)};
    if (distance > referenceLimit)
        c_PractiseStopFly.publish(1);
}

void UserControl2::markFreshStart() {
    resumeMode = ResumeMode::clear;
    recording.setNewest(1);
    recording.edit(1) = presentSample();
    c_TraceBufferMax.publish(1);
}

/// A recording that has not begun shows the chart as it stands now.
void UserControl2::renewFirstSample() {
    if (resumeMode == ResumeMode::clear && recording.sampleIndex() <= 1)
        markFreshStart();
}

/// An earlier flight takes its comments along, but not one that is just being marked.
void UserControl2::freshRecording() {
    const bool followsFlight = recording.sampleIndex() > 1;
    recording.clear();
    becomeNewSession();
    if (followsFlight && comments.selectedCommentIndex == noComment)
        forgetComments();
    clock = FlightClock{};
    referenceReading = {};
    c_PractiseStopFly.publish(0);
    resumeMode = ResumeMode::goOn;
    publishStopwatch();
    publishFlightTime();
    recording.edit(1) = presentSample();
    c_TraceBufferMax.publish(1);
}

void UserControl2::redrawTrace() {
    picture.trace.clear();
    if (traceShown() && resumeMode != ResumeMode::clear)
        DrawReplayTrace(picture, view, recording, aircraft.trueHeading);
}

} // namespace tarnel
