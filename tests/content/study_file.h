#pragma once

#include "strings/string_table.h"

#include <map>
#include <string>
#include <vector>

namespace tarnel {

/// A language of the study files: how its files are named and the words that answers are judged by.
struct StudyLanguage {
    std::string prefix;       ///< of a file's name
    const StringTable& texts; ///< of the lists that answers are picked from
    std::string left;
    std::string right;
    std::string interceptGrows; ///< of intercepts, where German has "ss"
    std::string interceptShrinks;
    std::string interceptStays;
};

/// German, then English.
[[nodiscard]] const std::vector<StudyLanguage>& studyLanguages();

/// The columns of a record before its session, in the order of its lines. A question of the ADF
/// exercise has tags one character longer, up to its first answer.
struct StudyLayout {
    std::string file; ///< without prefix and extension
    std::vector<std::string> columns;
    std::string stem; ///< of the names of its sessions
};

/// All ten, in the order of the exercises.
[[nodiscard]] const std::vector<StudyLayout>& studyLayouts();
/// The layout whose sessions have this stem.
[[nodiscard]] const StudyLayout& studyLayout(const std::string& stem);

using StudyColumns = std::map<std::string, std::string>;

struct WrittenQuestion {
    StudyColumns columns;
    std::string session; ///< without its extension

    [[nodiscard]] const std::string& text(const std::string& column) const {
        return columns.at(column);
    }
    [[nodiscard]] double number(const std::string& column) const { return std::stod(text(column)); }
};

/// Reads a shipped study file and expects its form: lines ended by CR LF, a tag of the right length
/// on each, a separator behind each record. Ends at the first line that has not this form.
[[nodiscard]] std::vector<WrittenQuestion> readStudyFile(const StudyLanguage& language,
                                                         const StudyLayout& layout);

} // namespace tarnel
