#pragma once

#include "persistence/lock_file.h"

#include <optional>
#include <string>

namespace tarnel {

/// `ScratchFolder`: a folder that one program has for itself while it runs.
class ScratchFolder {
  public:
    /// Makes it below `parent`, and removes those of programs that were killed. Never throws.
    explicit ScratchFolder(const std::string& parent);
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;
    /// Removes it with all that lies in it.
    ~ScratchFolder();

    /// Empty if it could not be made.
    [[nodiscard]] const std::string& path() const { return folder; }

  private:
    std::string folder;
    std::optional<LockFile> lock; ///< beside it, under its name
};

} // namespace tarnel
