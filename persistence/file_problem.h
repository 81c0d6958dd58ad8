#pragma once

namespace tarnel {

/// What a line of a chart, a session or a track has to hold.
enum class FileField {
    key,        ///< of an enciphered file, a whole number from 1 to 99
    identifier, ///< of at most `longestStationText` characters
    frequency,  ///< the same
    stationState,
    ndbState,
    mapCentre,
    mapScale,
    latitude,
    longitude,
    heading,
    localizerCourse,
    wholeNumber,         ///< of 16 bits
    degrees,             ///< an angle that may go round several times
    airspeed,            ///< 0 to 1000 kt
    windSpeed,           ///< up to 500 kt
    commentIndex,        ///< -1 to 100
    sampleEnd,           ///< the line behind the fields of a sample
    comment,             ///< of at most `Comments::longestText` characters
    noFurtherComment,    ///< there are 101 already
    noFurtherSample,     ///< there are 6,000 already
    gpx,                 ///< XML without a fault, from "gpx" on and without a document type
    trackColumns,        ///< names of columns, time and position among them
    time,                ///< of a point of a track
    laterTime,           ///< not before that of the point before
    nearTime,            ///< at most a minute behind it
    groundSpeed,         ///< at most 500 kt from the point before
    practiseArea,        ///< a latitude of at most 70 degrees
    trackPoint,          ///< of a track, which needs two
    flight,              ///< faster than 50 kt
    noFurtherTrackPoint, ///< there are 100,000 already
};

/// Where a file is wrong.
struct FileProblem {
    int line = 0; ///< from 1
    FileField expected = FileField::identifier;
    bool endOfFile = false; ///< the file ends before that line
    bool operator==(const FileProblem&) const = default;
};

/// The number of `problem` as a run-time error: 9 for a comment or sample too many, 62 at the end
/// of the file, 13 for a line that holds something else.
[[nodiscard]] int errorNumber(const FileProblem& problem);

} // namespace tarnel
