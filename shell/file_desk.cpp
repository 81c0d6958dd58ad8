#include "shell/file_desk.h"

#include "core/plain_text.h"
#include "engine/file_requests.h"
#include "persistence/file_path.h"
#include "platform/path_text.h"
#include "shell/text_format.h"

#include <algorithm>
#include <cctype>

namespace tarnel {

namespace {

namespace fs = std::filesystem;

bool isChart(FileRequest request) {
    return request == FileRequest::loadChart || request == FileRequest::saveChart;
}

Text titleOf(FileRequest request) {
    switch (request) {
    case FileRequest::loadChart:
        return Text::loadChart;
    case FileRequest::saveChart:
        return Text::saveChartAs;
    case FileRequest::loadSession:
        return Text::loadSession;
    case FileRequest::saveSession:
        return Text::saveSessionAs;
    case FileRequest::loadOldSession:
        break;
    }
    return Text::loadOldSessionTitle;
}

bool liesBelow(const fs::path& path, const fs::path& folder) {
    const auto end = std::mismatch(folder.begin(), folder.end(), path.begin(), path.end());
    return end.first == folder.end();
}

std::string lowerExtension(const fs::path& file) {
    return lowerCase(textOf(file.extension()));
}

bool isTrack(const fs::path& file) {
    const std::string extension = lowerExtension(file);
    return extension == ".gpx" || extension == ".csv";
}

} // namespace

void FileDesk::connectMenu() {
    UserControl2& sim = at.sim;
    FileMenu& menu = at.strip.fileMenu;
    const auto ask = [](Property<std::int16_t>& request, std::int16_t how) {
        return [&request, how] { request = how; };
    };
    menu.newSession.onClick = [this] { newSession(); };
    menu.loadSession.onClick = ask(sim.c_loadSession, fileRequest::ask);
    menu.loadOldSession.onClick = ask(sim.c_LoadOLDSession, fileRequest::ask);
    menu.saveSession.onClick = ask(sim.c_saveSession, fileRequest::byName);
    menu.saveSessionAs.onClick = ask(sim.c_saveSession, fileRequest::ask);
    menu.loadChart.onClick = ask(sim.c_loadChart, fileRequest::ask);
    menu.saveChart.onClick = ask(sim.c_saveChart, fileRequest::byName);
    menu.saveChartAs.onClick = ask(sim.c_saveChart, fileRequest::ask);
    menu.encipher.onClick = [&sim, &menu] {
        sim.c_doEncrypt = menu.encipher.value() == 1 ? on : off;
    };
}

/// An empty session at rest, with everything shown as the strip says.
void FileDesk::newSession() {
    at.replay.stop();
    at.practice.leave();
    at.strip.replayPage.lock.set(0);
    at.strip.replayPage.hide.set(0);
    at.coupling.setHeadingBug(0);
    at.sim.c_NewSession = 1;
    at.comments.forgetText();
    at.replay.renewClock();
    at.replay.standAt(1);
}

void FileDesk::openSession(const std::string& path) {
    if (at.strip.fileMenu.loadSession.enabled())
        at.sim.openSession(path);
}

void FileDesk::openFile(const std::string& path) {
    const fs::path file = portablePath(path);
    if (!at.strip.fileMenu.loadSession.enabled())
        at.boxes.show(Text::windowTitle,
                      filledIn(at.boxes.texts[Text::openAtRest], {textOf(file.filename())}),
                      BoxKind::notice);
    else if (lowerExtension(file) == ".map")
        at.sim.openChart(path);
    else if (isTrack(file))
        openTrack(path);
    else
        openSession(path);
}

std::optional<std::string> FileDesk::chooseFile(FileRequest request, const std::string& present) {
    const auto text = [this](Text id) { return std::string(at.boxes.texts[id]); };
    const fs::path file = portablePath(present);
    const bool aside = liesBelow(file, portablePath(at.sim.c_ScratchPath) / "track");
    const bool saves = request == FileRequest::saveChart || request == FileRequest::saveSession;
    return at.boxes.chooseFile(
        {.saves = saves,
         .title = text(titleOf(request)),
         .present = aside ? textOf(file.filename()) : present,
         .folder = at.sim.c_MainAppPath,
         .filter = text(isChart(request) ? Text::chartFilter : Text::sessionFilter) +
                   (saves ? "" : ";;" + text(Text::anyFileFilter)),
         .extension = isChart(request) ? "map" : "ts"});
}

/// What lies in the application's `default` folder, and the default chart.
bool FileDesk::isShipped(const std::string& path) const {
    std::error_code ignored;
    const fs::path application = fs::weakly_canonical(portablePath(at.sim.c_MainAppPath), ignored);
    const fs::path file = fs::weakly_canonical(portablePath(path), ignored);
    return liesBelow(file, application / "default") || file == application / "default.map";
}

void FileDesk::fileUsed(const std::string& path) {
    if (onUsed)
        onUsed(path);
}

/// A session that the user picked shows its trace.
void FileDesk::stopForLoading(FileRequest request, bool picked) {
    at.replay.stop();
    at.flight.stop();
    if (picked && !isChart(request)) {
        at.strip.replayPage.lock.set(0);
        at.strip.chartPage.trace.set(1);
    }
    at.practice.leave();
    at.comments.forgetText();
    at.replay.renewClock();
}

} // namespace tarnel
