#pragma once

#include <functional>
#include <stdexcept>
#include <string>

namespace tarnel {

/// How a tool ends.
enum ExitStatus { done = 0, inputIsWrong = 1, usageIsWrong = 2, outputFailed = 3 };

/// A command line that does not say what is to be done.
class UsageError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// Runs what a tool does, which returns its exit status. What `work` throws is told on standard
/// error, a UsageError together with `usage`, and becomes the status.
[[nodiscard]] ExitStatus runTool(const std::string& tool, const std::string& usage,
                                 const std::function<ExitStatus()>& work);

} // namespace tarnel
