#pragma once

#include "shell/outside_world.h"

#include <QString>

#include <optional>

class QWidget;

namespace tarnel {

/// `FileDialog`: asks for files in the system's dialog. It opens in the folder of the present file,
/// else where the last file was picked, by an earlier program too, else among the program's own
/// files for loading and among the user's documents for saving. A save asks before it takes the
/// name of a file that is there, and with another of several filters the name gets its ending.
class FileDialog {
  public:
    /// The settings know the folder of the last file.
    explicit FileDialog(SettingsStore& store) : settings(store) {}

    std::optional<std::string> ask(const FileQuestion& question, QWidget* parent);

  private:
    [[nodiscard]] QString folderFor(const FileQuestion& question) const;
    [[nodiscard]] QString lastFolder() const;

    SettingsStore& settings;
};

} // namespace tarnel
