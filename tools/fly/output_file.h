#pragma once

#include <fstream>
#include <iostream>
#include <stdexcept>
#include <string>
#include <string_view>

namespace tarnel {

/// The name that stands for standard output.
constexpr auto standardOutput = "-";

/// An output that can't be written.
class OutputError : public std::runtime_error {
  public:
    explicit OutputError(const std::string& file) : std::runtime_error("can't write " + file) {}
};

/// A file to write to, or standard output.
class OutputFile {
  public:
    /// Throws OutputError if it can't be opened.
    explicit OutputFile(const std::string& path) : name(path), toStandard(path == standardOutput) {
        if (!toStandard)
            file.open(name, std::ios::binary | std::ios::trunc);
        check();
    }

    void write(std::string_view text) { stream() << text; }
    /// Throws OutputError if not all could be written.
    void close() {
        stream().flush();
        check();
    }

  private:
    std::ostream& stream() { return toStandard ? std::cout : file; }
    void check() {
        if (!stream())
            throw OutputError(toStandard ? "standard output" : name);
    }

    std::string name;
    bool toStandard;
    std::ofstream file;
};

} // namespace tarnel
