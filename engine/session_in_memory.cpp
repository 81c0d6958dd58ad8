#include "engine/file_requests.h"
#include "engine/user_control_2.h"
#include "persistence/session_file.h"

namespace tarnel {

/// False before the first sample of a flight: what is set up by hand is then all there is.
bool UserControl2::flown() const {
    return resumeMode != ResumeMode::clear && recording.sampleIndex() > 1;
}

/// What is set up by hand at rest: place, heading, wind, panel and stations. The times and the
/// comment of one that was loaded stay.
Sample UserControl2::situation() const {
    Sample sample = presentSample();
    if (recording.sampleIndex() > 1)
        return sample;
    const Sample& first = recording.at(1);
    sample.traceComment = first.traceComment;
    if (!inReplay())
        return sample;
    sample.traceStopMinutes = first.traceStopMinutes;
    sample.traceStopSeconds = first.traceStopSeconds;
    sample.traceFlightMinutes = first.traceFlightMinutes;
    sample.traceFlightSeconds = first.traceFlightSeconds;
    sample.traceFlightHours = first.traceFlightHours;
    return sample;
}

/// A situation that follows a flight has none of its comments.
SessionFile UserControl2::session() const {
    SessionFile session;
    describeStations(session);
    const bool follows = !flown() && recording.sampleIndex() > 1;
    for (int i = 0; i < Comments::count && !follows; ++i)
        session.comments.push_back(comments.text(i));
    session.samples.reserve(static_cast<std::size_t>(c_TraceBufferMax.get()));
    if (!flown() && stopped())
        session.samples.push_back(situation());
    else
        for (int i = 1; i <= c_TraceBufferMax; ++i)
            session.samples.push_back(recording.at(i));
    return session;
}

FlightVersion UserControl2::flightVersion() const {
    return {recording.changes(), comments.changes(), stationChanges};
}

bool UserControl2::flightUnsaved() const {
    return flown() && flightVersion() != versionInFile;
}

void UserControl2::takeFlight(const SessionFile& flight, const ReferenceTrack& track) {
    makeWayFor(FileRequest::loadSession, fileRequest::ask);
    reference = track;
    applySession(flight);
    becomeNewSession();
    c_HscrollRepeatValue = c_TraceBufferMax;
}

} // namespace tarnel
