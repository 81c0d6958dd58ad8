#include "engine/file_requests.h"
#include "engine/user_control_2.h"
#include "persistence/cipher.h"
#include "persistence/file_bytes.h"
#include "persistence/older_session_file.h"
#include "persistence/save_file.h"
#include "persistence/session_file.h"

#include <algorithm>

namespace tarnel {

namespace {

constexpr const char* temporaryName = "temp.ts";

std::string inFolder(const std::string& folder, const std::string& name) {
    const bool ended = folder.empty() || folder.back() == '/' || folder.back() == '\\';
    return folder + (ended ? "" : "/") + name;
}

} // namespace

/// The path that a request means: asked for, the temporary one, or `present`. A save asks too if
/// the user never named `present` himself.
std::optional<std::string> UserControl2::nameFor(FileRequest request, std::int16_t how,
                                                 const std::string& present) const {
    const bool saves = request == FileRequest::saveChart || request == FileRequest::saveSession;
    const std::string& named =
        request == FileRequest::saveChart ? chartNamedByUser : sessionNamedByUser;
    if (how == fileRequest::temporary)
        return inFolder(c_ScratchPath, temporaryName);
    if (how == fileRequest::byName && (!saves || present == named))
        return present;
    if (how != fileRequest::ask && how != fileRequest::byName)
        return {};
    return messages.chooseFile(request, present);
}

/// What a save may overwrite unasked when the user has named `path`.
std::string UserControl2::namedByUser(const std::string& path) const {
    return messages.isShipped(path) ? std::string() : path;
}

bool UserControl2::loadByName(const std::string& path) {
    return loadSessionFrom(FileRequest::loadSession, path, fileRequest::byName);
}

/// The one place between a file that was read and found good and the first change that it makes:
/// what has to be done about the flight in memory is done here. Whoever owns the strip brings it to
/// rest; without one the clock alone stops.
void UserControl2::makeWayFor(FileRequest request, std::int16_t how) {
    messages.stopForLoading(request, how == fileRequest::ask);
    mouse.cancel();
    if (!stopped())
        c_TimerEN = 0;
    recording.giveUp();
}

bool UserControl2::keepTemporary() {
    const std::string path = inFolder(c_ScratchPath, temporaryName);
    try {
        saveSessionTo(path);
        return true;
    } catch (const RunTimeError& error) {
        messages.fileFailed(FileRequest::saveSession, path, error);
        return false;
    }
}

bool UserControl2::recallTemporary() {
    return loadSessionFrom(FileRequest::loadSession, inFolder(c_ScratchPath, temporaryName),
                           fileRequest::temporary);
}

void UserControl2::showPracticePanel() {
    if (practicePanelSet && c_TrackDelta >= 0 && c_TrackDelta <= 3)
        practicePanelSet(c_TrackDelta);
    c_TrackDelta.publish(0);
}

void UserControl2::openSession(const std::string& path) {
    loadSessionFrom(FileRequest::loadSession, path, fileRequest::ask);
}

/// A key from 1 to 99 if files are to be enciphered.
std::optional<int> UserControl2::keyToSave() {
    if (c_doEncrypt == off)
        return {};
    randomize();
    return drawKey(random);
}

void UserControl2::loadSession() {
    const std::int16_t how = c_loadSession;
    const auto path = nameFor(FileRequest::loadSession, how, c_SessionFileName);
    c_loadSession.publish(0);
    if (path)
        loadSessionFrom(FileRequest::loadSession, *path, how);
}

void UserControl2::loadOldSession() {
    const std::int16_t how = c_LoadOLDSession;
    const auto path = nameFor(FileRequest::loadOldSession, how, c_SessionFileName);
    c_LoadOLDSession.publish(0);
    if (path)
        loadSessionFrom(FileRequest::loadOldSession, *path, how);
}

/// Reads and checks first: a file without a whole sample changes nothing, one with a wrong line
/// behind gives the samples before it. A session that the user opened rests on its last sample; one
/// loaded by name on its first.
bool UserControl2::loadSessionFrom(FileRequest request, const std::string& path, std::int16_t how) {
    try {
        std::string bytes = readFileBytes(path, largestSession);
        const SessionFile session = request == FileRequest::loadOldSession
                                        ? readOlderSession(std::move(bytes))
                                        : readSession(std::move(bytes));
        const bool usable = !session.samples.empty();
        if (usable)
            takeSession(session, request, path, how);
        if (session.problem)
            messages.fileWrong(request, path, *session.problem, usable);
        return usable;
    } catch (const RunTimeError& error) {
        messages.fileFailed(request, path, error);
        return false;
    }
}

/// A name that a save would overwrite goes only with a file that was opened whole, in today's form.
void UserControl2::takeSession(const SessionFile& session, FileRequest request,
                               const std::string& path, std::int16_t how) {
    makeWayFor(request, how);
    if (how != fileRequest::temporary) {
        chanceWinds.clear();
        c_SessionFileName.setIfChanged(path);
        takeReference(session);
        const bool overwritable =
            how == fileRequest::ask && !session.problem && request != FileRequest::loadOldSession;
        sessionNamedByUser = overwritable ? namedByUser(path) : std::string();
    }
    applySession(session);
    if (how != fileRequest::temporary)
        versionInFile = flightVersion();
    c_HscrollRepeatValue = how == fileRequest::byName ? std::int16_t{1} : c_TraceBufferMax;
}

void UserControl2::takeReference(const SessionFile& session) {
    reference.clear();
    for (const Sample& sample : session.samples)
        reference.append({sample.traceLat, sample.traceLon});
}

void UserControl2::applySession(const SessionFile& session) {
    recording.clear();
    history.clear();
    c_mapedit.setIfChanged(0);
    forgetComments();
    referenceReading = {};
    for (std::size_t i = 0; i < session.comments.size(); ++i)
        comments.setText(static_cast<int>(i), session.comments[i]);
    comments.commentCount = static_cast<std::int16_t>(session.comments.size());
    applyStations(session);
    const auto count = static_cast<std::int16_t>(session.samples.size());
    for (std::int16_t i = 1; i <= count; ++i)
        recording.edit(i) = session.samples[static_cast<std::size_t>(i) - 1];
    recording.setNewest(count);
    c_TraceBufferMax.publish(count);
    c_FlyEN.publish(1);
    restoreAll(count);
    c_MAPscale = session.mapScaleTwips.value_or(c_MAPscale.get());
}

void UserControl2::saveSession() {
    const std::int16_t how = c_saveSession;
    const bool followsFlight = !flown() && recording.sampleIndex() > 1;
    if (followsFlight)
        sessionNamedByUser.clear();
    const auto path = nameFor(FileRequest::saveSession, how, c_SessionFileName);
    c_saveSession.publish(0);
    if (!path)
        return;
    try {
        saveSessionTo(*path);
        if (how == fileRequest::temporary)
            return;
        c_SessionFileName.setIfChanged(*path);
        sessionNamedByUser = namedByUser(*path);
        if (followsFlight) {
            forgetComments();
            markFreshStart();
        }
        versionInFile = flightVersion();
    } catch (const RunTimeError& error) {
        messages.fileFailed(FileRequest::saveSession, *path, error);
    }
}

std::string UserControl2::sessionBytes() {
    return writeSession(session(), keyToSave());
}

void UserControl2::saveSessionTo(const std::string& path) {
    saveFileBytes(path, sessionBytes());
}

} // namespace tarnel
