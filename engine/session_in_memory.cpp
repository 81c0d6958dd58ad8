#include "engine/session_desk.h"

namespace tarnel {

/// What is set up by hand at rest: place, heading, wind, panel and stations. The times and the
/// comment of one that was loaded stay.
Sample SessionDesk::situation() const {
    Sample sample = given.recorder.presentSample();
    const Recording& recording = given.tape.recording;
    if (recording.sampleIndex() > 1)
        return sample;
    const Sample& first = recording.at(1);
    sample.traceComment = first.traceComment;
    if (!given.tape.inReplay())
        return sample;
    sample.traceStopMinutes = first.traceStopMinutes;
    sample.traceStopSeconds = first.traceStopSeconds;
    sample.traceFlightMinutes = first.traceFlightMinutes;
    sample.traceFlightSeconds = first.traceFlightSeconds;
    sample.traceFlightHours = first.traceFlightHours;
    return sample;
}

/// A situation that follows a flight has none of its comments.
SessionFile SessionDesk::session() const {
    SessionFile session;
    given.charts.describeStations(session);
    const bool follows = given.tape.situationAfterFlight();
    for (int i = 0; i < Comments::count && !follows; ++i)
        session.comments.push_back(given.comments.comments.text(i));
    const std::int16_t length = given.chart.c_TraceBufferMax;
    session.samples.reserve(static_cast<std::size_t>(length));
    if (!given.tape.flown() && given.clocks.stopped())
        session.samples.push_back(situation());
    else
        for (int i = 1; i <= length; ++i)
            session.samples.push_back(given.tape.recording.at(i));
    return session;
}

FlightVersion SessionDesk::version() const {
    return {given.tape.recording.changes(), given.comments.comments.changes(),
            given.scene.stationChanges()};
}

bool SessionDesk::unsaved() const {
    return given.tape.flown() && version() != given.session.version;
}

} // namespace tarnel
