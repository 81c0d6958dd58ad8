#pragma once

#include <stdexcept>
#include <string>

namespace tarnel {

/// Where a plan is wrong, and what was expected there.
class PlanError : public std::runtime_error {
  public:
    /// `line` counts from 1; 0 stands for the file as a whole.
    PlanError(const std::string& file, int line, const std::string& expected);

    [[nodiscard]] const std::string& file() const { return wrongFile; }
    [[nodiscard]] int line() const { return wrongLine; }
    [[nodiscard]] const std::string& expected() const { return expectation; }

  private:
    std::string wrongFile;
    int wrongLine;
    std::string expectation;
};

} // namespace tarnel
