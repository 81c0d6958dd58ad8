#pragma once

#include <exception>
#include <string>
#include <utility>

namespace tarnel {

/// What went wrong. The string table has a sentence for each.
enum class Cause {
    invalidCall,
    overflow,
    subscriptOutOfRange,
    divisionByZero,
    fileNotFound,
    linkLeadsNowhere,
    nameNotUtf8,
    fileTooLarge,
    fileWithoutFlight,
    notAFile, ///< a folder, a device, a pipe
    fileNotReadable,
    fileReadOnly,
    folderReadOnly,
    diskReadOnly,
    folderNotFound,
    nameTooLong,
    fileInUse,
    diskFull, ///< or a limit on the size of files
    deviceError,
    accessFailed, ///< none of those above
};

/// A run-time error with a number, as the message boxes show it. Whoever touches a file catches it;
/// everywhere else it ends the tick that raised it.
class RunTimeError : public std::exception {
  public:
    static constexpr int invalidCall = 5;
    static constexpr int overflow = 6;
    static constexpr int subscriptOutOfRange = 9;
    static constexpr int divisionByZero = 11;
    static constexpr int typeMismatch = 13;
    static constexpr int fileNotFound = 53;
    static constexpr int deviceInputOutput = 57;
    static constexpr int diskFull = 61;
    static constexpr int inputPastEnd = 62;
    static constexpr int permissionDenied = 70;
    static constexpr int pathFileAccess = 75;
    static constexpr int pathNotFound = 76;

    /// `source` names what failed.
    explicit RunTimeError(Cause why, std::string source = "Tarnel")
        : errorCause(why),
          errorSource(std::move(source)),
          summary(errorSource + ": error " + std::to_string(numberOf(why))) {}

    [[nodiscard]] Cause cause() const { return errorCause; }
    [[nodiscard]] int number() const { return numberOf(errorCause); }
    [[nodiscard]] const std::string& source() const { return errorSource; }
    /// Source and number, for who debugs; users are told the cause.
    [[nodiscard]] const char* what() const noexcept override { return summary.c_str(); }

  private:
    static constexpr int numberOf(Cause cause);

    Cause errorCause;
    std::string errorSource;
    std::string summary;
};

constexpr int RunTimeError::numberOf(Cause cause) {
    switch (cause) {
    case Cause::invalidCall:
        return invalidCall;
    case Cause::overflow:
        return overflow;
    case Cause::subscriptOutOfRange:
        return subscriptOutOfRange;
    case Cause::divisionByZero:
        return divisionByZero;
    case Cause::fileNotFound:
    case Cause::linkLeadsNowhere:
    case Cause::nameNotUtf8:
        return fileNotFound;
    case Cause::fileTooLarge:
    case Cause::fileWithoutFlight:
        return inputPastEnd;
    case Cause::fileInUse:
        return permissionDenied;
    case Cause::folderNotFound:
        return pathNotFound;
    case Cause::diskFull:
        return diskFull;
    case Cause::deviceError:
        return deviceInputOutput;
    case Cause::notAFile:
    case Cause::fileNotReadable:
    case Cause::fileReadOnly:
    case Cause::folderReadOnly:
    case Cause::diskReadOnly:
    case Cause::nameTooLong:
    case Cause::accessFailed:
        break;
    }
    return pathFileAccess;
}

} // namespace tarnel
