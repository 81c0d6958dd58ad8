#pragma once

#include "authoring/course_source.h"
#include "authoring/findings.h"
#include "authoring/route.h"

#include <string>
#include <vector>

namespace tarnel {

/// A file of a course, its path relative to the course's folder, such as "sessions/hsi01.ts".
struct BuiltFile {
    std::string path;
    std::string bytes;
};

struct BuiltCourse {
    std::vector<BuiltFile> files; ///< none if a finding must not stand
    SourceFindings findings;      ///< in the order of their lines
};

/// Flies a written flight, and proves what is said in it.
[[nodiscard]] BuiltCourse buildFlight(const Route& route, const std::string& applicationFolder);

/// Flies every situation, asks its questions in both languages, and proves the answers.
/// `applicationFolder` holds the trainer's data.
[[nodiscard]] BuiltCourse buildCourse(const CourseSource& source,
                                      const std::string& applicationFolder);

} // namespace tarnel
