#include "persistence/file_path.h"
#include "shell/form_1.h"

#include <algorithm>
#include <filesystem>
#include <utility>

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

} // namespace

std::optional<std::string> Form1::chooseFile(FileRequest request, const std::string& present) {
    FileQuestion question;
    question.saves = request == FileRequest::saveChart || request == FileRequest::saveSession;
    question.title = text(titleOf(request));
    question.present = present;
    question.folder = UserControl11.c_MainAppPath;
    question.filter = text(isChart(request) ? Text::chartFilter : Text::sessionFilter);
    question.extension = isChart(request) ? "map" : "ts";
    showBehindBox();
    const bool wasUp = std::exchange(boxUp, true);
    auto chosen = outside.chooseFile(question);
    boxUp = wasUp;
    return chosen;
}

/// What lies in the application's `default` folder, and the default chart.
bool Form1::isShipped(const std::string& path) const {
    std::error_code ignored;
    const fs::path application =
        fs::weakly_canonical(portablePath(UserControl11.c_MainAppPath), ignored);
    const fs::path file = fs::weakly_canonical(portablePath(path), ignored);
    return liesBelow(file, application / "default") || file == application / "default.map";
}

/// A session that the user picked shows its trace.
void Form1::stopForLoading(FileRequest request, bool picked) {
    StopReplay();
    StopFly();
    if (picked && !isChart(request)) {
        replayPage.lock.set(0);
        chartPage.trace.set(1);
    }
    practising = false;
    UserControl11.c_TrackDelta = 0;
    commentPanel.text.setText({});
    replayClockShown = {-1, -1};
}

} // namespace tarnel
