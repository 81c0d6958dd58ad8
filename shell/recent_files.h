#pragma once

#include "exercises/settings_store.h"

#include <string>
#include <vector>

namespace tarnel {

/// `RecentFiles`: the files that the user opened or saved last. They stand in the settings, so that
/// programs that run side by side and the next start have the same list.
class RecentFiles {
  public:
    explicit RecentFiles(SettingsStore& store) : settings(store) {}

    /// The last one first, each once, at most eight.
    [[nodiscard]] std::vector<std::string> paths() const;
    /// Puts a file first. A path that is not absolute, or has a line break, is left out.
    void note(const std::string& path);
    void clear();

  private:
    SettingsStore& settings;
};

} // namespace tarnel
