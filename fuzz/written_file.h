#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

namespace tarnel {

/// `WrittenFile`: an input as a file, for a reader that takes no bytes; in a folder of its own that
/// goes at the end.
class WrittenFile {
  public:
    explicit WrittenFile(const std::string& name) : file(folder / name) {}
    ~WrittenFile() { std::filesystem::remove_all(folder); }
    WrittenFile(const WrittenFile&) = delete;
    WrittenFile& operator=(const WrittenFile&) = delete;

    /// The path, once it holds `bytes`.
    std::string with(const std::string& bytes) const {
        std::ofstream(file, std::ios::binary) << bytes;
        return file.string();
    }

  private:
    std::string pattern = (std::filesystem::temp_directory_path() / "tarnel-XXXXXX").string();
    std::filesystem::path folder = mkdtemp(pattern.data());
    std::filesystem::path file;
};

} // namespace tarnel
