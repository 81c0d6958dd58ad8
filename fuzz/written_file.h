#pragma once

#include "support/temporary_folder.h"

#include <fstream>
#include <string>

namespace tarnel {

/// `WrittenFile`: an input as a file, for a reader that takes no bytes; in a folder of its own that
/// goes at the end.
class WrittenFile {
  public:
    explicit WrittenFile(const std::string& name) : file(folder.at / name) {}

    /// The path, once it holds `bytes`.
    std::string with(const std::string& bytes) const {
        std::ofstream(file, std::ios::binary) << bytes;
        return textOf(file);
    }

  private:
    TemporaryFolder folder;
    std::filesystem::path file;
};

} // namespace tarnel
