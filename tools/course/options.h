#pragma once

#include <stdexcept>
#include <string>
#include <vector>

namespace tarnel {

/// A command line that does not say what to do.
class UsageError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

enum class CourseCommand { help, build, check };

/// What is to be done with which sources.
struct CourseOptions {
    CourseCommand command = CourseCommand::help;
    std::vector<std::string> sources;
    std::string out; ///< the folder of the course; empty: one among the user's own
};

/// Throws UsageError.
[[nodiscard]] CourseOptions readCourseOptions(const std::vector<std::string>& arguments);

} // namespace tarnel
