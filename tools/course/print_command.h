#pragma once

#include "authoring/course_source.h"
#include "authoring/local_text.h"

#include <string>

namespace tarnel {

/// Writes the questions of a course as a PDF: a page a question, the solutions at the end. Throws
/// PlanError for a solution that does not come to its end, OutputError.
void printCourse(const CourseSource& source, Language language,
                 const std::string& applicationFolder, const std::string& file);

} // namespace tarnel
