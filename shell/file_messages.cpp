#include "core/number_text.h"
#include "shell/file_desk.h"
#include "shell/problem_text.h"
#include "strings/cause_text.h"

namespace tarnel {

namespace {

/// How a box names the procedure that failed.
const char* procedureOf(FileRequest request) {
    switch (request) {
    case FileRequest::loadChart:
        return "c_loadChart";
    case FileRequest::saveChart:
        return "c_saveChart";
    case FileRequest::loadSession:
        return "LoadSession";
    case FileRequest::saveSession:
        return "SaveSession";
    case FileRequest::loadOldSession:
        break;
    }
    return "c_LoadOldSession";
}

std::string fileError(const StringTable& texts, FileRequest request, int number,
                      const std::string& source, const std::string& description) {
    return procedureOf(request) + std::string(texts[Text::errorNumber]) +
           numberText(std::int64_t{number}) + std::string(texts[Text::errorGenerated]) + source +
           "\n" + description;
}

} // namespace

void FileDesk::bufferWarning(BufferWarning warning) {
    const StringTable& texts = at.boxes.texts;
    at.boxes.show(Text::replayBufferTitle, warning == BufferWarning::full
                                               ? std::string(texts[Text::replayBufferFull])
                                               : std::string(texts[Text::replayBufferAlmostFull]) +
                                                     "\n" +
                                                     std::string(texts[Text::replayBufferSave]));
}

/// What a load that failed has left: at the start, the chart that is built in.
std::string FileDesk::afterFailedLoad() const {
    const bool starting = at.sim.c_SessionFileName.get().empty();
    return "\n" + std::string(at.boxes.texts[starting ? Text::builtInChart : Text::nothingChanged]);
}

/// A question tells in its own place that its session can't be loaded.
bool FileDesk::questionTells(FileRequest request) const {
    return at.exercise.runs() && request == FileRequest::loadSession;
}

void FileDesk::fileFailed(FileRequest request, const std::string& path, const RunTimeError& error) {
    const StringTable& texts = at.boxes.texts;
    if (questionTells(request))
        return;
    std::string description = path + "\n" + std::string(causeText(texts, error.cause()));
    if (request != FileRequest::saveChart && request != FileRequest::saveSession)
        description += afterFailedLoad();
    at.boxes.show(Text::errorTitle,
                  fileError(texts, request, error.number(), error.source(), description));
}

void FileDesk::fileWrong(FileRequest request, const std::string& path, const FileProblem& problem,
                         bool taken) {
    const StringTable& texts = at.boxes.texts;
    if (!taken && questionTells(request))
        return;
    const std::string description =
        path + "\n" + problemText(texts, problem) +
        (taken ? "\n" + std::string(texts[Text::flightTakenUpTo]) : afterFailedLoad());
    at.boxes.show(Text::errorTitle, fileError(texts, request, errorNumber(problem),
                                              std::string(texts[Text::windowTitle]), description));
}

} // namespace tarnel
