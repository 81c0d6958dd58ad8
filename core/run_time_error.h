#pragma once

#include <stdexcept>
#include <string>

namespace tarnel {

/// A run-time error with a number, as the message boxes show it. Whoever touches a file catches it;
/// everywhere else it ends the tick that raised it.
class RunTimeError : public std::runtime_error {
  public:
    static constexpr int overflow = 6;
    static constexpr int subscriptOutOfRange = 9;
    static constexpr int divisionByZero = 11;
    static constexpr int typeMismatch = 13;
    static constexpr int fileNotFound = 53;
    static constexpr int deviceInputOutput = 57;
    static constexpr int diskFull = 61;
    static constexpr int inputPastEnd = 62;
    static constexpr int pathFileAccess = 75;
    static constexpr int pathNotFound = 76;

    /// `source` names the procedure that failed, `description` says in words what went wrong.
    RunTimeError(int number, std::string source, const std::string& description)
        : std::runtime_error(description), errorNumber(number), errorSource(std::move(source)) {}

    [[nodiscard]] int number() const { return errorNumber; }
    [[nodiscard]] const std::string& source() const { return errorSource; }

  private:
    int errorNumber;
    std::string errorSource;
};

} // namespace tarnel
