#include "core/number_text.h"
#include "core/run_time_error.h"
#include "shell/form_1.h"
#include "shell/text_format.h"

#include <utility>

namespace tarnel {

namespace {

constexpr int badContent = 13;

Text expectedName(ChartField field) {
    switch (field) {
    case ChartField::plainText:
    case ChartField::identifier:
        return Text::expectedIdentifier;
    case ChartField::frequency:
        return Text::expectedFrequency;
    case ChartField::stationState:
        return Text::expectedStationState;
    case ChartField::ndbState:
        return Text::expectedNdbState;
    case ChartField::mapCentre:
        return Text::expectedNumber;
    case ChartField::mapScale:
        return Text::expectedMapScale;
    case ChartField::latitude:
        return Text::expectedLatitude;
    case ChartField::longitude:
        return Text::expectedLongitude;
    case ChartField::heading:
        return Text::expectedHeading;
    case ChartField::localizerCourse:
        break;
    }
    return Text::expectedLocalizerCourse;
}

std::string fileError(const StringTable& texts, int number, const std::string& source,
                      const std::string& description) {
    return "c_loadChart" + std::string(texts[Text::errorNumber]) +
           numberText(std::int64_t{number}) + std::string(texts[Text::errorGenerated]) + source +
           "\n" + description;
}

} // namespace

void Form1::showBox(const std::string& title, const std::string& message, BoxKind kind) {
    const bool wasUp = std::exchange(boxUp, true);
    outside.messageBox(kind, title, message);
    boxUp = wasUp;
}

/// An error that comes again at every tick is told once; the next clean tick forgets it.
void Form1::reportRunTimeError(const RunTimeError& error) {
    const std::string told =
        filledIn(texts[Text::flightPaused],
                 {numberText(std::int64_t{error.number()}), error.source(), error.what()});
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

void Form1::chartFailed(const std::string& path, const RunTimeError& error) {
    const std::string description = path + "\n" + error.what() + "\n" + text(Text::builtInChart);
    showBox(text(Text::errorTitle), fileError(texts, error.number(), error.source(), description));
}

void Form1::chartWrong(const std::string& path, const ChartProblem& problem) {
    const std::string line = numberText(std::int64_t{problem.line});
    const std::string expected(texts[expectedName(problem.expected)]);
    std::string description = path + "\n";
    if (problem.endOfFile)
        description += filledIn(texts[Text::fileEndsBefore], {line}) + "\n";
    description += filledIn(texts[Text::lineExpected], {line, expected});
    showBox(text(Text::errorTitle),
            fileError(texts, badContent, text(Text::windowTitle), description));
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
