#pragma once

#include "authoring/course_builder.h"
#include "exercises/study_file.h"
#include "fuzz_target.h"
#include "session_checks.h"

namespace tarnel {

/// What was built without a finding that must not stand can be opened; all else names a line.
inline void requireThatItCanBeTaught(const BuiltCourse& built) {
    for (const SourceFinding& finding : built.findings)
        require(finding.line >= 0 && !finding.text.empty());
    for (const BuiltFile& file : built.files) {
        if (!file.path.ends_with(".ts"))
            continue;
        require(!readSession(file.bytes).problem.has_value());
        requireThatItCanBeSaved(readSession(file.bytes));
    }
}

} // namespace tarnel
