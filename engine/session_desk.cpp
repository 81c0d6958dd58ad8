#include "engine/session_desk.h"

#include "persistence/file_bytes.h"
#include "persistence/older_session_file.h"
#include "persistence/save_file.h"

#include <utility>

namespace tarnel {

void SessionDesk::load() {
    loadAsked(FileRequest::loadSession, given.files.c_loadSession);
}

void SessionDesk::loadOld() {
    loadAsked(FileRequest::loadOldSession, given.files.c_LoadOLDSession);
}

void SessionDesk::loadAsked(FileRequest request, Property<std::int16_t>& asked) {
    const std::int16_t how = asked;
    const auto path =
        given.picker.pathFor(request, how, given.session.name(), given.session.namedByUser);
    asked.publish(0);
    if (path)
        loadFrom(request, *path, how);
}

void SessionDesk::open(const std::string& path) {
    loadFrom(FileRequest::loadSession, path, fileRequest::ask);
}

bool SessionDesk::loadByName(const std::string& path) {
    return loadFrom(FileRequest::loadSession, path, fileRequest::byName);
}

bool SessionDesk::recallTemporary() {
    return loadFrom(FileRequest::loadSession, given.picker.temporaryPath(), fileRequest::temporary);
}

/// Reads and checks first: a file without a whole sample changes nothing, one with a wrong line
/// behind gives the samples before it. A session that the user opened rests on its last sample; one
/// loaded by name on its first.
bool SessionDesk::loadFrom(FileRequest request, const std::string& path, std::int16_t how) {
    try {
        std::string bytes = readFileBytes(path, largestSession);
        const SessionFile session = request == FileRequest::loadOldSession
                                        ? readOlderSession(std::move(bytes))
                                        : readSession(std::move(bytes));
        const bool usable = !session.samples.empty();
        if (usable)
            take(session, request, path, how);
        if (usable && how == fileRequest::ask)
            given.messages.fileUsed(path);
        if (session.problem)
            given.messages.fileWrong(request, path, *session.problem, usable);
        return usable;
    } catch (const RunTimeError& error) {
        given.messages.fileFailed(request, path, error);
        return false;
    }
}

/// A name that a save would overwrite goes only with a file that was opened whole, in today's form.
void SessionDesk::take(const SessionFile& session, FileRequest request, const std::string& path,
                       std::int16_t how) {
    given.gate.makeWayFor(request, how);
    if (how != fileRequest::temporary) {
        given.wind.forgetChanceWinds();
        takeReference(session);
        const bool overwritable =
            how == fileRequest::ask && !session.problem && request != FileRequest::loadOldSession;
        given.session.take(path, overwritable ? given.picker.overwritable(path) : std::string());
    }
    apply(session);
    if (how != fileRequest::temporary)
        given.session.version = version();
    given.replayProperties.c_HscrollRepeatValue =
        how == fileRequest::byName ? std::int16_t{1} : given.chart.c_TraceBufferMax;
}

void SessionDesk::takeReference(const SessionFile& session) {
    given.recorder.reference.clear();
    for (const Sample& sample : session.samples)
        given.recorder.reference.append({sample.traceLat, sample.traceLon});
}

void SessionDesk::takeFlight(const SessionFile& flight, const ReferenceTrack& track) {
    given.gate.makeWayFor(FileRequest::loadSession, fileRequest::ask);
    given.recorder.reference = track;
    apply(flight);
    given.session.becomeNew();
    given.replayProperties.c_HscrollRepeatValue = given.chart.c_TraceBufferMax;
}

void SessionDesk::apply(const SessionFile& session) {
    Recording& recording = given.tape.recording;
    recording.clear();
    given.history.clear();
    given.editing.c_mapedit.setIfChanged(0);
    given.comments.forget();
    given.recorder.reading = {};
    Comments& comments = given.comments.comments;
    for (std::size_t i = 0; i < session.comments.size(); ++i)
        comments.setText(static_cast<int>(i), session.comments[i]);
    comments.commentCount = static_cast<std::int16_t>(session.comments.size());
    given.charts.applyStations(session);
    const auto count = static_cast<std::int16_t>(session.samples.size());
    for (std::int16_t i = 1; i <= count; ++i)
        recording.edit(i) = session.samples[static_cast<std::size_t>(i) - 1];
    recording.setNewest(count);
    given.chart.c_TraceBufferMax.publish(count);
    given.flight.c_FlyEN.publish(1);
    given.replay.showWhole(count);
    given.chart.c_MAPscale = session.mapScaleTwips.value_or(given.chart.c_MAPscale.get());
}

bool SessionDesk::keepTemporary() {
    const std::string path = given.picker.temporaryPath();
    try {
        saveTo(path);
        return true;
    } catch (const RunTimeError& error) {
        given.messages.fileFailed(FileRequest::saveSession, path, error);
        return false;
    }
}

/// A situation that follows a flight is a session of its own from here on.
void SessionDesk::save() {
    const std::int16_t how = given.files.c_saveSession;
    const bool followsFlight = given.tape.situationAfterFlight();
    if (followsFlight)
        given.session.namedByUser.clear();
    const auto path = given.picker.pathFor(FileRequest::saveSession, how, given.session.name(),
                                           given.session.namedByUser);
    given.files.c_saveSession.publish(0);
    if (!path)
        return;
    try {
        saveTo(*path);
        if (how == fileRequest::temporary)
            return;
        given.session.take(*path, given.picker.overwritable(*path));
        if (followsFlight) {
            given.comments.forget();
            given.recorder.markFreshStart();
        }
        given.session.version = version();
        given.messages.fileUsed(*path);
    } catch (const RunTimeError& error) {
        given.messages.fileFailed(FileRequest::saveSession, *path, error);
    }
}

std::string SessionDesk::bytes() const {
    return writeSession(session(), given.picker.keyToSave());
}

void SessionDesk::saveTo(const std::string& path) const {
    saveFileBytes(path, bytes());
}

} // namespace tarnel
