#pragma once

#include <string>
#include <vector>

namespace tarnel {

enum class CourseCommand { help, build, check, print };

/// What is to be done with which sources.
struct CourseOptions {
    CourseCommand command = CourseCommand::help;
    std::vector<std::string> sources;
    /// The file of a print, or the folder of a course; empty for a name of its own.
    std::string out;
    bool german = false; ///< the language of a print
};

/// Throws UsageError.
[[nodiscard]] CourseOptions readCourseOptions(const std::vector<std::string>& arguments);

} // namespace tarnel
