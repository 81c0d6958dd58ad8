#include "engine/flight_in_memory.h"
#include "engine/user_control_2.h"

#include <iterator>

namespace tarnel {

namespace {

/// `c_WindSetEN` of a wind that is put back.
std::int16_t modeOf(WindSource source) {
    static constexpr std::int16_t modes[] = {0, 3, 2, 4};
    return modes[static_cast<std::size_t>(source)];
}

} // namespace

HandState UserControl2::handState() const {
    HandState state;
    state.aircraft = aircraft.position;
    state.heading = aircraft.trueHeading;
    state.headingBug = c_HDGbug;
    for (std::size_t i = 0; i < slotCount; ++i)
        state.stations[i] = stations[i].position;
    state.wind = wind;
    state.windSource = windSource;
    state.lastWind = lastWind;
    return state;
}

/// A step that begins: what is to be remembered of the state before it.
HandStep UserControl2::beginStep(Deed deed, Slot slot) const {
    HandStep step;
    step.deed = deed;
    step.slot = slot;
    step.before = handState();
    if (deed == Deed::placeAircraft)
        step.flight = flightThatEnds();
    return step;
}

/// The flight that the next place of the aircraft ends; null if there is none.
std::shared_ptr<const FlightInMemory> UserControl2::flightThatEnds() const {
    return flown() ? std::make_shared<const FlightInMemory>(flightInMemory()) : nullptr;
}

bool UserControl2::finishStep(HandStep step) {
    step.after = handState();
    if (!step.changed() || !stopped())
        return false;
    if (step.deed == Deed::moveStation)
        step.recorded = recordStation(step.slot);
    history.add(std::move(step));
    return true;
}

/// Writes a station's place into the samples from the present one on. What stood there comes back.
std::vector<std::pair<std::int16_t, GeoPosition>> UserControl2::recordStation(Slot slot) {
    const auto station = static_cast<std::size_t>(slot);
    const GeoPosition place = toPlain(stations[station].position);
    std::vector<std::pair<std::int16_t, GeoPosition>> before;
    for (std::int16_t i = presentSampleIndex(); i <= c_TraceBufferMax; ++i) {
        GeoPosition& recorded = recording.edit(i).traceStations[station];
        if (before.empty() || before.back().second != recorded)
            before.emplace_back(i, recorded);
        recorded = place;
    }
    return before;
}

bool UserControl2::undo() {
    if (mouse.takeBack())
        return true;
    mouse.cancel();
    const HandStep* step = stopped() ? history.undo() : nullptr;
    if (!step)
        return false;
    putBack(*step);
    return true;
}

void UserControl2::putBack(const HandStep& step) {
    if (step.deed == Deed::moveStation)
        putBackStation(step);
    else if (step.flight)
        putBackFlight(*step.flight, step.before.aircraft);
    else
        bringAbout(step, step.before);
}

bool UserControl2::redo() {
    mouse.cancel();
    HandStep* step = stopped() ? history.redo() : nullptr;
    if (!step)
        return false;
    if (step->flight)
        step->flight = flightThatEnds(); // it may have changed since
    bringAbout(*step, step->after);
    if (step->deed == Deed::moveStation && !step->recorded.empty()) {
        const auto station = static_cast<std::size_t>(step->slot);
        const GeoPosition place = toPlain(step->after.stations[station]);
        for (int i = step->recorded.front().first; i <= c_TraceBufferMax; ++i)
            recording.edit(i).traceStations[station] = place;
    }
    return true;
}

/// Sets what the step is about, and that alone.
void UserControl2::bringAbout(const HandStep& step, const HandState& state) {
    switch (step.deed) {
    case Deed::placeAircraft:
        putAircraft(state.aircraft);
        break;
    case Deed::turnAircraft:
        turnAircraft(state.heading);
        if (mouse.headingDrawn)
            mouse.headingDrawn(state.headingBug);
        break;
    case Deed::moveStation:
        moveStation(step.slot, state.stations[static_cast<std::size_t>(step.slot)]);
        break;
    case Deed::setWind:
        wind = state.wind;
        windSource = state.windSource;
        lastWind = state.lastWind;
        c_WindSetEN.publish(modeOf(windSource));
        publishWind();
        break;
    }
}

/// The samples get back what they had; a replay goes on showing its sample.
void UserControl2::putBackStation(const HandStep& step) {
    const auto station = static_cast<std::size_t>(step.slot);
    for (auto run = step.recorded.begin(); run != step.recorded.end(); ++run) {
        const auto next = std::next(run);
        const int last = next == step.recorded.end() ? c_TraceBufferMax.get() : next->first - 1;
        for (int i = run->first; i <= last; ++i)
            recording.edit(i).traceStations[station] = run->second;
    }
    moveStation(step.slot, inReplay() ? toSplit(recording.at(replaySample).traceStations[station])
                                      : step.before.stations[station]);
}

FlightInMemory UserControl2::flightInMemory() const {
    return {recording,
            comments,
            reference,
            referenceReading,
            clock,
            resumeMode,
            replaySample,
            c_TraceBufferMax,
            c_FlyEN,
            c_replayInstLock,
            c_RepeatValue,
            c_ApMinutes,
            c_ApSeconds,
            c_ApHours2,
            c_ApMinutes2,
            c_ApSeconds2,
            c_CurrentComment,
            c_SessionFileName,
            sessionNamedByUser,
            versionInFile};
}

/// The flight that a placed aircraft has ended is there again, as if nothing had happened.
void UserControl2::putBackFlight(const FlightInMemory& flight, const SplitPosition& place) {
    recording.goBackTo(flight.recording);
    comments.goBackTo(flight.comments);
    reference = flight.reference;
    referenceReading = flight.referenceReading;
    clock = flight.clock;
    resumeMode = flight.resumeMode;
    replaySample = flight.replaySample;
    c_TraceBufferMax.publish(flight.traceBufferMax);
    c_FlyEN.publish(flight.flyEN);
    c_replayInstLock.publish(flight.replayInstLock);
    c_RepeatValue.publish(flight.repeatValue);
    c_ApMinutes.publish(flight.apMinutes);
    c_ApSeconds.publish(flight.apSeconds);
    c_ApHours2.publish(flight.apHours2);
    c_ApMinutes2.publish(flight.apMinutes2);
    c_ApSeconds2.publish(flight.apSeconds2);
    c_CurrentComment.setIfChanged(flight.currentComment);
    c_SessionFileName.setIfChanged(flight.sessionFileName);
    sessionNamedByUser = flight.sessionNamedByUser;
    versionInFile = flight.versionInFile;
    aircraft.placeAt(place);
    view.placeAircraft(aircraft);
    redrawTrace();
    refresh();
}

} // namespace tarnel
