#include "engine/replay.h"

#include "core/angle.h"

namespace tarnel {

namespace {

/// `c_ReplayInterpolation`.
constexpr std::int16_t showSample = 0;
constexpr std::int16_t flyFromSample = 1;

GeoPosition placeOf(const Sample& sample) {
    return {sample.traceLat, sample.traceLon};
}

Wind windOf(const Sample& sample) {
    const bool calm = sample.traceWindDirection < 0 || sample.traceWindSpeed < 0;
    return calm ? Wind{}
                : Wind{static_cast<double>(sample.traceWindDirection), sample.traceWindSpeed};
}

} // namespace

void Replay::showWhole(std::int16_t index) {
    given.replay.c_replayInstLock = 1;
    given.replay.c_ReplayInterpolation = showSample;
    given.replay.c_RepeatValue = index;
}

void Replay::goToSample() {
    FlightTape& tape = given.tape;
    const std::int16_t index = given.replay.c_RepeatValue;
    const bool beyond = index > given.chart.c_TraceBufferMax && index <= Recording::lastSample;
    const bool ignored = index < 1 || !given.panel.stopped() || beyond;
    if (ignored || index > Recording::lastSample)
        given.replay.c_RepeatValue.publish(tape.replaySample);
    if (ignored)
        return;
    const Sample& sample = tape.recording.at(index);
    given.history.keepStations();
    tape.resumeMode = ResumeMode::cut;
    tape.replaySample = index;
    if (given.replay.c_replayInstLock == 1)
        restoreSettings(sample);
    else
        overwriteSettings(index);
    restoreMotion(sample);
    if (given.replay.c_ReplayInterpolation == showSample)
        restorePlace(sample);
    else
        flyBetweenSamples();
    given.comments.show(index);
    given.recorder.compareWithReference(index);
    redraw();
}

void Replay::overwriteSettings(std::int16_t index) {
    Recording& recording = given.tape.recording;
    Sample sample = recording.at(index);
    given.recorder.copySettings(sample);
    if (sample != recording.at(index))
        recording.edit(index) = sample;
}

/// Clocks, speed, turn, wind and autopilot; the heading too unless the aircraft flies on between
/// samples.
void Replay::restoreMotion(const Sample& sample) {
    if (given.replay.c_ReplayInterpolation == showSample)
        given.scene.takeHeading(intoCircle(sample.traceHeading));
#define READOUT(name, type, rule, value, property) given.panel.property.publish(sample.name);
#define SETTING(name, type, rule, kind, property, control)                                         \
    if constexpr (!setting::kind::withLock)                                                        \
        given.panel.property.publish(sample.name);
#include "core/sample_rows.def"
    given.wind.takeRecorded(windOf(sample));
}

void Replay::restoreSettings(const Sample& sample) {
#define SETTING(name, type, rule, kind, property, control)                                         \
    if constexpr (setting::kind::withLock)                                                         \
        given.panel.property.publish(sample.name);
#include "core/sample_rows.def"
    given.replay.c_replayActive.publish(1);
}

void Replay::restorePlace(const Sample& sample) {
    flownBetween = false;
    FlightScene& scene = given.scene;
    scene.aircraft.placeAt(placeOf(sample));
    for (std::size_t i = 0; i < slotCount; ++i)
        scene.stations[i].position = toSplit(sample.traceStations[i]);
    given.panel.c_LocCrs1.publish(sample.traceLocCourse);
}

/// One tick of flight from the sample or from where the aircraft is.
void Replay::flyBetweenSamples() {
    if (given.replay.c_ReplayInterpolation == flyFromSample)
        given.scene.aircraft.placeAt(placeOf(given.tape.recording.at(given.tape.replaySample)));
    given.scene.flyByTick();
    flownBetween = true;
}

/// The recorded courses count from north: a turned chart takes the heading off them.
void Replay::redraw() {
    FlightScene& scene = given.scene;
    scene.view.placeAircraft(scene.aircraft);
    scene.refresh();
    RadialInputs inputs = scene.radialInputs();
    if (!scene.view.northUpMode && given.replay.c_replayInstLock == 1) {
        inputs.inst2.obs -= given.panel.c_HDG;
        inputs.inst3.obs -= given.panel.c_HDG;
    }
    scene.redrawChart(inputs);
    scene.redrawTrace();
}

void Replay::resume() {
    FlightTape& tape = given.tape;
    const bool another = tape.replaySample < tape.recording.sampleIndex() || tape.replaySample == 1;
    tape.recording.cutAfter(tape.replaySample);
    if (another && given.session.name() == given.session.namedByUser)
        given.session.becomeNew();
    const Sample& sample = tape.recording.at(tape.replaySample);
    given.scene.placeAircraft(placeOf(sample));
    if (flownBetween)
        given.scene.turnAircraft(intoCircle(sample.traceHeading));
    given.comments.layUpTo(tape.replaySample);
    given.clocks.goOnFromShown();
    given.chart.c_TraceBufferMax.publish(tape.replaySample);
    tape.resumeMode = ResumeMode::goOn;
}

} // namespace tarnel
