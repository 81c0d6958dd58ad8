#pragma once

#include "authoring/course_source.h"
#include "core/recording.h"

#include <array>
#include <string>
#include <vector>

namespace tarnel {

/// A question as it goes into the study files, with the flight behind it: what is to be proved.
struct BuiltQuestion {
    const CourseKind& kind;
    const FlownSituation& flown;
    std::array<StudyRecord, std::size(bothLanguages)> records; ///< but for the session's name
    std::vector<Sample> samples; ///< of the session; element 0 is sample 1

    [[nodiscard]] const StudyRecord& in(Language language) const {
        return records[static_cast<std::size_t>(language)];
    }
    [[nodiscard]] SourceFinding finding(std::string text) const {
        return {flown.situation.line, std::move(text)};
    }
};

[[nodiscard]] BuiltQuestion questionOf(const CourseSource& source, const FlownSituation& flown);

} // namespace tarnel
