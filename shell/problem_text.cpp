#include "shell/problem_text.h"

#include "core/number_text.h"
#include "shell/text_format.h"

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
    case FileField::gpx:
        return Text::expectedGpx;
    case FileField::trackColumns:
        return Text::expectedTrackColumns;
    case FileField::time:
        return Text::expectedTime;
    case FileField::laterTime:
        return Text::expectedLaterTime;
    case FileField::nearTime:
        return Text::expectedNearTime;
    case FileField::groundSpeed:
        return Text::expectedGroundSpeed;
    case FileField::practiseArea:
        return Text::expectedPractiseArea;
    case FileField::trackPoint:
        return Text::expectedTrackPoint;
    case FileField::flight:
        return Text::expectedFlight;
    case FileField::noFurtherTrackPoint:
        return Text::expectedNoFurtherTrackPoint;
    case FileField::noFurtherSample:
        break;
    }
    return Text::expectedNoFurtherSample;
}

Text expectedName(NavField field) {
    switch (field) {
    case NavField::fileKind:
        return Text::navFileKind;
    case NavField::version:
        return Text::navVersion;
    case NavField::rowCode:
        return Text::navRowCode;
    case NavField::packed:
        return Text::navPacked;
    case NavField::quoteEnd:
        return Text::navQuoteEnd;
    case NavField::fields:
        return Text::navFields;
    case NavField::latitude:
        return Text::expectedLatitude;
    case NavField::longitude:
        return Text::expectedLongitude;
    case NavField::frequency:
        return Text::navFrequency;
    case NavField::course:
        return Text::navDegrees;
    case NavField::identifier:
        return Text::expectedIdentifier;
    case NavField::lastRow:
        break;
    }
    return Text::navLastRow;
}

} // namespace

std::string problemText(const StringTable& texts, const FileProblem& problem) {
    if (problem.endOfFile && problem.line == 1)
        return std::string(texts[Text::fileEmpty]);
    const std::string line = numberText(std::int64_t{problem.line});
    const std::string ends =
        problem.endOfFile ? filledIn(texts[Text::fileEndsBefore], {line}) + "\n" : std::string();
    const std::string expected(texts[expectedName(problem.expected)]);
    return ends + filledIn(texts[Text::lineExpected], {line, expected});
}

std::string problemText(const StringTable& texts, const NavProblem& problem) {
    return filledIn(texts[Text::lineExpected], {numberText(std::int64_t{problem.line}),
                                                texts[expectedName(problem.expected)]});
}

} // namespace tarnel
