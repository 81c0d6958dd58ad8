#include "core/angle.h"
#include "engine/user_control_2.h"

#include <algorithm>

namespace tarnel {

namespace {

/// `c_ReplayInterpolation`.
constexpr std::int16_t showSample = 0;
constexpr std::int16_t flyFromSample = 1;

/// `c_WindSetEN`, as a replay tells of its wind.
constexpr std::int16_t recordedWind = 4;
constexpr std::int16_t windWithZero = 5;

GeoPosition placeOf(const Sample& sample) {
    return {sample.traceLat, sample.traceLon};
}

} // namespace

std::int16_t UserControl2::presentSampleIndex() const {
    return inReplay() ? replaySample : std::max<std::int16_t>(1, recording.sampleIndex());
}

/// Goes to a sample of what was loaded, with all the settings it has.
void UserControl2::restoreAll(std::int16_t index) {
    c_replayInstLock = 1;
    c_ReplayInterpolation = showSample;
    c_RepeatValue = index;
}

void UserControl2::goToSample() {
    const std::int16_t index = c_RepeatValue;
    const bool ignored =
        index < 1 || !stopped() || (index > c_TraceBufferMax && index <= Recording::lastSample);
    if (ignored || index > Recording::lastSample)
        c_RepeatValue.publish(replaySample);
    if (ignored)
        return;
    const Sample& sample = recording.at(index);
    history.keepStations();
    resumeMode = ResumeMode::cut;
    replaySample = index;
    if (c_replayInstLock == 1)
        restoreSettings(sample);
    else
        overwriteSettings(index);
    restoreMotion(sample);
    if (c_ReplayInterpolation == showSample)
        restorePlace(sample);
    else
        flyBetweenSamples();
    showComment(index);
    compareWithReference(index);
    restoreWind();
    redrawReplay();
}

void UserControl2::overwriteSettings(std::int16_t index) {
    Sample sample = recording.at(index);
    copySettings(sample);
    if (sample != recording.at(index))
        recording.edit(index) = sample;
}

/// Clocks, speed, turn, wind and autopilot; the heading too unless the aircraft flies on between
/// samples.
void UserControl2::restoreMotion(const Sample& sample) {
    if (c_ReplayInterpolation == showSample) {
        const double before = aircraft.trueHeading;
        aircraft.trueHeading = intoCircle(sample.traceHeading);
        headingTurned(before);
    }
#define READOUT(name, type, rule, value, property) property.publish(sample.name);
#define SETTING(name, type, rule, kind, property, control)                                         \
    if constexpr (!setting::kind::withLock)                                                        \
        property.publish(sample.name);
#include "core/sample_rows.def"
    const bool calm = sample.traceWindDirection < 0 || sample.traceWindSpeed < 0;
    wind =
        calm ? Wind{} : Wind{static_cast<double>(sample.traceWindDirection), sample.traceWindSpeed};
}

void UserControl2::restoreSettings(const Sample& sample) {
#define SETTING(name, type, rule, kind, property, control)                                         \
    if constexpr (setting::kind::withLock)                                                         \
        property.publish(sample.name);
#include "core/sample_rows.def"
    c_replayActive.publish(1);
}

void UserControl2::restorePlace(const Sample& sample) {
    flownBetween = false;
    aircraft.placeAt(placeOf(sample));
    for (std::size_t i = 0; i < slotCount; ++i)
        stations[i].position = toSplit(sample.traceStations[i]);
    c_LocCrs1.publish(sample.traceLocCourse);
}

/// One tick of flight, as in `Timer1`, from the sample or from where the aircraft is.
void UserControl2::flyBetweenSamples() {
    if (c_ReplayInterpolation == flyFromSample)
        aircraft.placeAt(placeOf(recording.at(replaySample)));
    aircraft.tasUsed = c_TAS;
    aircraft.turnRateUsed = Turn_Rate;
    aircraft.fly(wind);
    turnByTick();
    flownBetween = true;
}

/// A wind that came by chance stays one; any that blows is the one to come back to.
void UserControl2::restoreWind() {
    const bool calm = wind.speed == 0;
    c_WindSetEN.publish(wind.direction > 0 && !calm ? recordedWind : windWithZero);
    if (!calm)
        lastWind = wind;
    const bool byChance = std::ranges::find(chanceWinds, wind) != chanceWinds.end();
    windSource = calm ? WindSource::none : byChance ? WindSource::byChance : WindSource::recorded;
    tellWind();
}

/// The recorded courses count from north: a turned chart takes the heading off them.
void UserControl2::redrawReplay() {
    view.placeAircraft(aircraft);
    refresh();
    RadialInputs inputs = radialInputs();
    if (!view.northUpMode && c_replayInstLock == 1) {
        inputs.inst2.obs -= c_HDG;
        inputs.inst3.obs -= c_HDG;
    }
    redrawChart(inputs);
    redrawTrace();
}

/// From the last sample on the flight goes on; from an earlier one, or from a situation without a
/// flight, another one begins that must not be saved over the first.
void UserControl2::resumeFromReplay() {
    const bool another = replaySample < recording.sampleIndex() || replaySample == 1;
    recording.cutAfter(replaySample);
    if (another && c_SessionFileName.get() == sessionNamedByUser)
        becomeNewSession();
    const Sample& sample = recording.at(replaySample);
    aircraft.placeAt(placeOf(sample));
    view.placeAircraft(aircraft);
    if (flownBetween)
        turnAircraft(intoCircle(sample.traceHeading));
    if (comments.selectedCommentIndex != noComment)
        recording.markComment(comments.commentStartSample, replaySample,
                              comments.selectedCommentIndex);
    clock.stopwatchMinutes = c_ApMinutes;
    clock.stopwatchSeconds = c_ApSeconds;
    clock.flightHours = c_ApHours2;
    clock.flightMinutes = c_ApMinutes2;
    clock.flightSeconds = c_ApSeconds2;
    c_TraceBufferMax.publish(replaySample);
    resumeMode = ResumeMode::goOn;
}

} // namespace tarnel
