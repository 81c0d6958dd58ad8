#include "engine/file_requests.h"
#include "persistence/file_path.h"
#include "shell/form_1.h"
#include "shell/text_format.h"

#include <algorithm>
#include <cctype>
#include <utility>

namespace tarnel {

void Form1::connectFiles() {
    UserControl2& sim = UserControl11;
    const auto ask = [](Property<std::int16_t>& request, std::int16_t how) {
        return [&request, how] { request = how; };
    };
    fileMenu.newSession.onClick = [this] { newSession(); };
    fileMenu.loadSession.onClick = ask(sim.c_loadSession, fileRequest::ask);
    fileMenu.loadOldSession.onClick = ask(sim.c_LoadOLDSession, fileRequest::ask);
    fileMenu.saveSession.onClick = ask(sim.c_saveSession, fileRequest::byName);
    fileMenu.saveSessionAs.onClick = ask(sim.c_saveSession, fileRequest::ask);
    fileMenu.loadChart.onClick = ask(sim.c_loadChart, fileRequest::ask);
    fileMenu.saveChart.onClick = ask(sim.c_saveChart, fileRequest::byName);
    fileMenu.saveChartAs.onClick = ask(sim.c_saveChart, fileRequest::ask);
    fileMenu.encipher.onClick = [this] {
        UserControl11.c_doEncrypt = fileMenu.encipher.value() == 1 ? on : off;
    };
    flightDesk.showBox = [this](const std::string& message) {
        showBox(text(Text::windowTitle), message);
    };
    practicePanel.keep.onClick = [this] { keepPracticeFlight(); };
    practicePanel.recall.onClick = [this] { recallPracticeFlight(); };
}

/// An empty session at rest, with everything shown as the strip says.
void Form1::newSession() {
    StopReplay();
    practising = false;
    UserControl11.c_TrackDelta = 0;
    replayPage.lock.set(0);
    replayPage.hide.set(0);
    setHeadingBug(0);
    UserControl11.c_NewSession = 1;
    commentPanel.text.setText({});
    replayClockShown = {-1, -1};
    replayIndex = 1;
    replayPage.bar.setValue(1);
}

void Form1::openSession(const std::string& path) {
    if (fileMenu.loadSession.enabled())
        UserControl11.openSession(path);
}

void Form1::openFile(const std::string& path) {
    const std::filesystem::path file = portablePath(path);
    if (!fileMenu.loadSession.enabled()) {
        showBox(text(Text::windowTitle),
                filledIn(texts[Text::openAtRest], {file.filename().string()}), BoxKind::notice);
        return;
    }
    std::string extension = file.extension().string();
    std::ranges::transform(extension, extension.begin(),
                           [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    if (extension == ".map")
        UserControl11.openChart(path);
    else
        openSession(path);
}

/// Keeps the flight aside and shows the session that it practises.
void Form1::keepPracticeFlight() {
    if (!UserControl11.stopped() || UserControl11.c_TrackDelta != 0)
        return;
    if (!UserControl11.keepTemporary()) {
        practicePanel.recall.show();
        return;
    }
    const bool practised = practising;
    if (!loadPractised(practisedPath)) {
        practicePanel.recall.show();
        return;
    }
    practising = practised;
    UserControl11.c_TrackDelta = 2;
}

void Form1::recallPracticeFlight() {
    if (!UserControl11.stopped() || UserControl11.c_TrackDelta != 0)
        return;
    const bool practised = practising;
    if (!UserControl11.recallTemporary()) {
        practicePanel.keep.show();
        return;
    }
    flightDesk.keeper.takeAsKept();
    practising = practised;
    UserControl11.c_TrackDelta = 3;
}

} // namespace tarnel
