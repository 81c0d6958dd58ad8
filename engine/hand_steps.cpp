#include "engine/hand_work.h"

#include <iterator>

namespace tarnel {

HandState HandWork::state() const {
    HandState now;
    now.aircraft = given.scene.aircraft.position;
    now.heading = given.scene.aircraft.trueHeading;
    now.headingBug = given.panel.c_HDGbug;
    for (std::size_t i = 0; i < slotCount; ++i)
        now.stations[i] = given.scene.stations[i].position;
    now.wind = given.wind.state();
    return now;
}

HandStep HandWork::beginStep(Deed deed, Slot slot) const {
    HandStep step;
    step.deed = deed;
    step.slot = slot;
    step.before = state();
    if (deed == Deed::placeAircraft)
        step.flight = flightThatEnds();
    return step;
}

/// The flight that the next place of the aircraft ends; null if there is none.
std::shared_ptr<const FlightInMemory> HandWork::flightThatEnds() const {
    return given.tape.flown() ? std::make_shared<const FlightInMemory>(given.memory.copy())
                              : nullptr;
}

bool HandWork::finishStep(HandStep step) {
    step.after = state();
    if (!step.changed() || !given.panel.stopped())
        return false;
    if (step.deed == Deed::moveStation)
        step.recorded = recordStation(step.slot);
    history.add(std::move(step));
    return true;
}

/// Writes a station's place into the samples from the present one on. What stood there comes back.
std::vector<std::pair<std::int16_t, GeoPosition>> HandWork::recordStation(Slot slot) {
    const auto station = static_cast<std::size_t>(slot);
    const GeoPosition place = toPlain(given.scene.stations[station].position);
    std::vector<std::pair<std::int16_t, GeoPosition>> before;
    for (std::int16_t i = given.tape.presentSampleIndex(); i <= given.chart.c_TraceBufferMax; ++i) {
        GeoPosition& recorded = given.tape.recording.edit(i).traceStations[station];
        if (before.empty() || before.back().second != recorded)
            before.emplace_back(i, recorded);
        recorded = place;
    }
    return before;
}

bool HandWork::undo() {
    const HandStep* step = given.panel.stopped() ? history.undo() : nullptr;
    if (!step)
        return false;
    putBack(*step);
    return true;
}

void HandWork::putBack(const HandStep& step) {
    if (step.deed == Deed::moveStation)
        putBackStation(step);
    else if (step.flight)
        putBackFlight(*step.flight, step.before.aircraft);
    else
        bringAbout(step, step.before);
}

bool HandWork::redo() {
    HandStep* step = given.panel.stopped() ? history.redo() : nullptr;
    if (!step)
        return false;
    if (step->flight)
        step->flight = flightThatEnds(); // it may have changed since
    bringAbout(*step, step->after);
    if (step->deed == Deed::moveStation && !step->recorded.empty()) {
        const auto station = static_cast<std::size_t>(step->slot);
        const GeoPosition place = toPlain(step->after.stations[station]);
        for (int i = step->recorded.front().first; i <= given.chart.c_TraceBufferMax; ++i)
            given.tape.recording.edit(i).traceStations[station] = place;
    }
    return true;
}

/// Sets what the step is about, and that alone.
void HandWork::bringAbout(const HandStep& step, const HandState& state) {
    switch (step.deed) {
    case Deed::placeAircraft:
        putAircraft(state.aircraft);
        break;
    case Deed::turnAircraft:
        given.scene.turnAircraft(state.heading);
        if (given.headingDrawn)
            given.headingDrawn(state.headingBug);
        break;
    case Deed::moveStation:
        moveStation(step.slot, state.stations[static_cast<std::size_t>(step.slot)]);
        break;
    case Deed::setWind:
        given.wind.putBack(state.wind);
        given.scene.refresh();
        break;
    }
}

/// The samples get back what they had; a replay goes on showing its sample.
void HandWork::putBackStation(const HandStep& step) {
    const auto station = static_cast<std::size_t>(step.slot);
    Recording& recording = given.tape.recording;
    for (auto run = step.recorded.begin(); run != step.recorded.end(); ++run) {
        const auto next = std::next(run);
        const int last =
            next == step.recorded.end() ? given.chart.c_TraceBufferMax.get() : next->first - 1;
        for (int i = run->first; i <= last; ++i)
            recording.edit(i).traceStations[station] = run->second;
    }
    const Sample& shown = recording.at(given.tape.replaySample);
    moveStation(step.slot, given.tape.inReplay() ? toSplit(shown.traceStations[station])
                                                 : step.before.stations[station]);
}

/// The flight that a placed aircraft has ended is there again, as if nothing had happened.
void HandWork::putBackFlight(const FlightInMemory& flight, const SplitPosition& place) {
    given.memory.putBack(flight);
    given.scene.placeAircraft(place);
    given.scene.redrawTrace();
    given.scene.refresh();
}

} // namespace tarnel
