#pragma once

#include "exercises/settings_store.h"

#include <QString>

namespace tarnel {

/// `FileSettings`: settings in an INI file. They are read once, when the program starts; a flush
/// writes what has changed since, beside the file, and renames. A value that was edited by hand
/// comes back as text, whatever it is.
class FileSettings : public MemorySettingsStore {
  public:
    explicit FileSettings(QString file);
    /// Flushes.
    ~FileSettings() override;
    FileSettings(const FileSettings&) = delete;
    FileSettings& operator=(const FileSettings&) = delete;

    void setValue(std::string_view application, std::string_view section, std::string_view key,
                  std::string_view value) override;
    void deleteSection(std::string_view application, std::string_view section) override;
    /// Without a file that can be written, the settings last as long as the program.
    void flush() override;

  private:
    void read();

    QString path;
    bool changed = false;
};

/// The settings file of this user, for both languages of the program.
[[nodiscard]] QString userSettingsFile();

} // namespace tarnel
