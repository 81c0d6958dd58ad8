#pragma once

#include "core/run_time_error.h"
#include "exercises/settings_store.h"

#include <chrono>
#include <optional>
#include <string>
#include <vector>

namespace tarnel {

/// `FileSettings`: settings in an INI file that several programs of a user share. It is read when
/// the program starts. A change is made on what the file holds then, under a lock, so that nothing
/// that another program has written is lost; the new file is written beside and renamed. Nothing of
/// this takes longer than a second, and what is no file of sensible size is neither read nor
/// replaced: then the settings last as long as the program.
class FileSettings : public MemorySettingsStore {
  public:
    explicit FileSettings(std::string file);
    /// Flushes, with more patience for another program than before.
    ~FileSettings() override;
    FileSettings(const FileSettings&) = delete;
    FileSettings& operator=(const FileSettings&) = delete;

    void setValue(std::string_view application, std::string_view section, std::string_view key,
                  std::string_view value) override;
    void deleteSection(std::string_view application, std::string_view section) override;
    void change(const Edit& edit) override;
    /// What could not be written stays to be written by the next flush.
    void flush() override;
    std::optional<SettingsTrouble> takeTrouble() override;

  private:
    void flushWithin(std::chrono::milliseconds patience);
    void makeChanges(std::chrono::milliseconds patience);
    void note(const RunTimeError& error);

    std::string path;
    std::vector<Edit> pending; ///< changes that the file lacks, in their order
    bool editing = false;
    std::optional<SettingsTrouble> trouble;
    bool troubleTold = false;
};

/// The settings file of this user, for both languages of the program.
[[nodiscard]] std::string userSettingsFile();

} // namespace tarnel
