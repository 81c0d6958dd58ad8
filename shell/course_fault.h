#pragma once

#include "exercises/course.h"
#include "strings/string_table.h"

#include <optional>
#include <string>

namespace tarnel {

/// A file of a course that can't serve.
struct CourseFault {
    std::string path;
    std::string why;
};

/// The names of the study file of `exercise` that lie in the course; the first is the one to take.
[[nodiscard]] std::vector<std::string> presentStudyFiles(const Course& course,
                                                         const ExerciseKind& exercise, bool german);

/// Reads the questions of `exercise` and all their flights. The first file that is missing, wrong
/// or too large, a study file with fewer questions than the exercise needs among them; nothing if
/// all are good. Takes a second at most, whatever lies there.
[[nodiscard]] std::optional<CourseFault>
courseFault(const Course& course, const ExerciseKind& exercise, const StringTable& texts);

} // namespace tarnel
