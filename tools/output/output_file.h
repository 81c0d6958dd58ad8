#pragma once

#include "platform/files.h"

#include <stdexcept>
#include <string>
#include <string_view>

namespace tarnel {

/// The name that stands for standard output.
constexpr auto standardOutput = "-";

/// An output that can't be written.
class OutputError : public std::runtime_error {
  public:
    OutputError(const std::string& file, std::string_view reason)
        : std::runtime_error("can't write " + file + ": " + std::string(reason)) {}
};

/// `OutputFile`: what a tool writes. A file is kept back and saved as a whole in the end, so that
/// whatever happens it is the old one or the new one; standard output, a pipe or a device gets the
/// parts as they come.
class OutputFile {
  public:
    /// Throws OutputError if a pipe or a device can't be opened.
    explicit OutputFile(const std::string& path);
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;

    /// Throws OutputError.
    void write(std::string_view part);
    /// Ends the writing. Throws OutputError unless all is written; without it a file stays as it
    /// was.
    void close();

  private:
    void writeNow(std::string_view part);

    std::string name;
    OpenFile opened; ///< a pipe or a device
    int stream = -1; ///< what gets parts as they come; -1 for a file
    std::string kept;
};

/// Whether two paths lead to the same file.
[[nodiscard]] bool isSameFile(const std::string& one, const std::string& other);

/// Whether `path` is standard output, a pipe or a device, which nothing can overwrite.
[[nodiscard]] bool isStream(const std::string& path);

} // namespace tarnel
