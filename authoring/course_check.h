#pragma once

#include "authoring/course_source.h"
#include "authoring/findings.h"

namespace tarnel {

/// Proves what holds for the questions of every exercise: answers, readings, comments.
void checkSituation(const CourseSource& source, const FlownSituation& flown, Findings& findings);

/// Proves the number of questions.
void checkCourse(const CourseSource& source, Findings& findings);

} // namespace tarnel
