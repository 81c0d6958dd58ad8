#pragma once

#include "exercises/study_record.h"

#include <string>
#include <string_view>
#include <vector>

namespace tarnel {

/// Why the reading of a study file ended.
enum class StudyEnd {
    complete,       ///< at the end of the text
    unreadable,     ///< there was no text
    insideRecord,   ///< the text ends within a record, which does not count
    tooManyRecords, ///< a record stands behind the last that can be held
    lineTooLong,    ///< a line has more than `longestStudyLine` characters
};

/// The questions of a study file, and how far it could be read.
struct StudyFile {
    std::vector<StudyRecord> records;
    StudyEnd end = StudyEnd::complete;
    int record = 0; ///< where reading ended early: the record, counted from 1
    int line = 0;   ///< and the last line read, counted from 1
};

/// The lines of a record: which prompts may stand in any order, and which lines count by their
/// place.
enum class StudyFormat { threePrompts, twoPrompts, bearings, intercept, wind };

/// As many questions as a study file may have.
constexpr int maxStudyRecords = 301;

/// As many bytes may it have.
constexpr std::size_t largestStudyFile = std::size_t{1} << 20;

/// As many characters may a line have, its tag included.
constexpr std::size_t longestStudyLine = 4000;

/// Reads the questions of exercise `type` (1 to 10; any other has none). A record is a fixed run of
/// lines and one more that is thrown away; a line counts by its place, not by its tag, except for
/// prompts that may stand in any order. So a line too few shifts what follows, and nothing tells.
/// Blank lines at the end of the text are no record. Lines end in CR LF or LF; the text is UTF-8,
/// or Windows-1252 if it isn't valid UTF-8.
[[nodiscard]] StudyFile readStudyFile(std::string_view bytes, int type);

/// The lines of `record` as `readStudyFile` takes them, each ended by CR LF, the separator
/// included. A line break within a text becomes a blank. Empty for a type outside 1 to 10.
[[nodiscard]] std::string writeStudyRecord(const StudyRecord& record, int type);

} // namespace tarnel
