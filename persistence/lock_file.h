#pragma once

#include "platform/files.h"

#include <optional>
#include <string>

namespace tarnel {

/// `LockFile`: a file that one program alone can hold, until it ends in whatever way.
class LockFile {
  public:
    /// Takes the lock, nothing if another holds it or the file can't be made.
    static std::optional<LockFile> take(const std::string& path);

    LockFile(LockFile&& other) noexcept = default;
    LockFile& operator=(LockFile&& other) noexcept;
    LockFile(const LockFile&) = delete;
    LockFile& operator=(const LockFile&) = delete;
    /// Gives the lock back and removes the file.
    ~LockFile();

  private:
    LockFile(std::filesystem::path path, OpenFile open);

    std::filesystem::path lockPath;
    OpenFile file;
};

} // namespace tarnel
