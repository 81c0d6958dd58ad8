#include "core/number_text.h"
#include "core/run_time_error.h"
#include "shell/form_1.h"
#include "shell/text_format.h"
#include "strings/cause_text.h"

#include <utility>

namespace tarnel {

namespace {

Text expectedName(FileField field) {
    switch (field) {
    case FileField::key:
        return Text::expectedKey;
    case FileField::identifier:
        return Text::expectedIdentifier;
    case FileField::frequency:
        return Text::expectedFrequency;
    case FileField::stationState:
        return Text::expectedStationState;
    case FileField::ndbState:
        return Text::expectedNdbState;
    case FileField::mapCentre:
        return Text::expectedNumber;
    case FileField::mapScale:
        return Text::expectedMapScale;
    case FileField::latitude:
        return Text::expectedLatitude;
    case FileField::longitude:
        return Text::expectedLongitude;
    case FileField::heading:
        return Text::expectedHeading;
    case FileField::localizerCourse:
        return Text::expectedLocalizerCourse;
    case FileField::wholeNumber:
        return Text::expectedWholeNumber;
    case FileField::degrees:
        return Text::expectedDegrees;
    case FileField::airspeed:
        return Text::expectedAirspeed;
    case FileField::windSpeed:
        return Text::expectedWindSpeed;
    case FileField::commentIndex:
        return Text::expectedCommentIndex;
    case FileField::sampleEnd:
        return Text::expectedSampleEnd;
    case FileField::comment:
        return Text::expectedComment;
    case FileField::noFurtherComment:
        return Text::expectedNoFurtherComment;
    case FileField::noFurtherSample:
        break;
    }
    return Text::expectedNoFurtherSample;
}

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

/// What a box tells stands behind it, and nothing is in the hand any more: the box gets its
/// release.
void Form1::showBehindBox() {
    APControlFace1.mouseUp();
    try {
        UserControl11.mouse.up();
        showState();
    } catch (const RunTimeError&) {
        // It hinders the picture; the next tick tells it.
    }
    if (beforeBox)
        beforeBox();
}

void Form1::showBox(const std::string& title, const std::string& message, BoxKind kind) {
    showBehindBox();
    const bool wasUp = std::exchange(boxUp, true);
    outside.messageBox(kind, title, message);
    boxUp = wasUp;
}

bool Form1::confirm(const std::string& title, const std::string& question) {
    showBehindBox();
    const bool wasUp = std::exchange(boxUp, true);
    const bool confirmed = outside.ask(title, question);
    boxUp = wasUp;
    return confirmed;
}

/// An error that comes again at every tick is told once; the next clean tick forgets it.
void Form1::reportRunTimeError(const RunTimeError& error) {
    const std::string told =
        filledIn(texts[Text::flightPaused], {numberText(std::int64_t{error.number()}),
                                             error.source(), causeText(texts, error.cause())});
    try {
        StopReplay();
        StopFly();
    } catch (const RunTimeError&) {
        // What hinders the flight hinders its picture too; it has been told, or is told below.
    }
    if (std::exchange(errorTold, told) != told)
        showBox(text(Text::errorTitle), told);
}

void Form1::bufferWarning(BufferWarning warning) {
    const std::string message =
        warning == BufferWarning::full
            ? text(Text::replayBufferFull)
            : text(Text::replayBufferAlmostFull) + "\n" + text(Text::replayBufferSave);
    showBox(text(Text::replayBufferTitle), message);
}

/// What a load that failed has left: at the start, the chart that is built in.
std::string Form1::afterFailedLoad() const {
    return "\n" + text(UserControl11.c_SessionFileName.get().empty() ? Text::builtInChart
                                                                     : Text::nothingChanged);
}

/// A question tells in its own place that its session can't be loaded.
bool Form1::questionTells(FileRequest request) const {
    return exerciseUp && request == FileRequest::loadSession;
}

void Form1::fileFailed(FileRequest request, const std::string& path, const RunTimeError& error) {
    if (questionTells(request))
        return;
    std::string description = path + "\n" + std::string(causeText(texts, error.cause()));
    if (request != FileRequest::saveChart && request != FileRequest::saveSession)
        description += afterFailedLoad();
    showBox(text(Text::errorTitle),
            fileError(texts, request, error.number(), error.source(), description));
}

void Form1::tellSettingsTrouble() {
    const auto trouble = outside.settings().takeTrouble();
    if (trouble)
        showBox(text(Text::errorTitle),
                filledIn(texts[Text::settingsNotKept],
                         {trouble->file, causeText(texts, trouble->cause)}));
}

std::string Form1::problemText(const FileProblem& problem) const {
    if (problem.endOfFile && problem.line == 1)
        return text(Text::fileEmpty);
    const std::string line = numberText(std::int64_t{problem.line});
    const std::string ends =
        problem.endOfFile ? filledIn(texts[Text::fileEndsBefore], {line}) + "\n" : std::string();
    const std::string expected(texts[expectedName(problem.expected)]);
    return ends + filledIn(texts[Text::lineExpected], {line, expected});
}

void Form1::fileWrong(FileRequest request, const std::string& path, const FileProblem& problem,
                      bool taken) {
    if (!taken && questionTells(request))
        return;
    const std::string description =
        path + "\n" + problemText(problem) +
        (taken ? "\n" + text(Text::flightTakenUpTo) : afterFailedLoad());
    showBox(text(Text::errorTitle),
            fileError(texts, request, errorNumber(problem), text(Text::windowTitle), description));
}

void Form1::showAbout() {
    showBox(text(Text::aboutTitle), text(Text::aboutText), BoxKind::notice);
}

void Form1::pictureMissing(const std::string& file) {
    if (pictureMissingSaid)
        return;
    pictureMissingSaid = true;
    showBox(text(Text::errorTitle), filledIn(texts[Text::picturesUnreadable], {file}));
}

} // namespace tarnel
