#include "engine/flight_in_memory.h"

namespace tarnel {

FlightInMemory FlightMemory::copy() const {
    return {.recording = given.tape.recording,
            .comments = given.comments.comments,
            .reference = given.recorder.reference,
            .referenceReading = given.recorder.reading,
            .clock = given.clocks.clock,
            .resumeMode = given.tape.resumeMode,
            .replaySample = given.tape.replaySample,
            .traceBufferMax = given.chart.c_TraceBufferMax,
            .flyEN = given.panel.c_FlyEN,
            .replayInstLock = given.replay.c_replayInstLock,
            .repeatValue = given.replay.c_RepeatValue,
            .apMinutes = given.panel.c_ApMinutes,
            .apSeconds = given.panel.c_ApSeconds,
            .apHours2 = given.panel.c_ApHours2,
            .apMinutes2 = given.panel.c_ApMinutes2,
            .apSeconds2 = given.panel.c_ApSeconds2,
            .currentComment = given.replay.c_CurrentComment,
            .sessionFileName = given.session.name(),
            .sessionNamedByUser = given.session.namedByUser,
            .versionInFile = given.session.version};
}

void FlightMemory::putBack(const FlightInMemory& flight) {
    given.tape.recording.goBackTo(flight.recording);
    given.comments.comments.goBackTo(flight.comments);
    given.recorder.reference = flight.reference;
    given.recorder.reading = flight.referenceReading;
    given.clocks.clock = flight.clock;
    given.tape.resumeMode = flight.resumeMode;
    given.tape.replaySample = flight.replaySample;
    given.chart.c_TraceBufferMax.publish(flight.traceBufferMax);
    given.panel.c_FlyEN.publish(flight.flyEN);
    given.replay.c_replayInstLock.publish(flight.replayInstLock);
    given.replay.c_RepeatValue.publish(flight.repeatValue);
    given.panel.c_ApMinutes.publish(flight.apMinutes);
    given.panel.c_ApSeconds.publish(flight.apSeconds);
    given.panel.c_ApHours2.publish(flight.apHours2);
    given.panel.c_ApMinutes2.publish(flight.apMinutes2);
    given.panel.c_ApSeconds2.publish(flight.apSeconds2);
    given.replay.c_CurrentComment.setIfChanged(flight.currentComment);
    given.session.take(flight.sessionFileName, flight.sessionNamedByUser);
    given.session.version = flight.versionInFile;
}

} // namespace tarnel
