#pragma once

#include "core/run_time_error.h"
#include "exercises/settings_text.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace tarnel {

/// A file of settings that can't be read or written.
struct SettingsTrouble {
    std::string file;
    Cause cause;
};

/// Texts that outlive the program, by application, section and key. What is set or deleted is read
/// back at once; it is kept from `flush` on, so that many sets cost one write of the file.
class SettingsStore {
  public:
    virtual ~SettingsStore() = default;

    /// `fallback` if there is no such key.
    [[nodiscard]] virtual std::string value(std::string_view application, std::string_view section,
                                            std::string_view key,
                                            std::string_view fallback) const = 0;
    virtual void setValue(std::string_view application, std::string_view section,
                          std::string_view key, std::string_view value) = 0;
    /// Throws the run-time error 5 if the section does not exist.
    virtual void deleteSection(std::string_view application, std::string_view section) = 0;
    virtual void flush() = 0;

    using Edit = std::function<void(SettingsStore&)>;
    /// Makes a change that reads what it changes, a count say, and keeps it at once. Where several
    /// programs share the settings `edit` is called once more on what they have become meanwhile,
    /// perhaps later: it keeps what it needs by value and does not throw.
    virtual void change(const Edit& edit) = 0;

    /// What hinders reading or keeping the settings. Told once.
    virtual std::optional<SettingsTrouble> takeTrouble() { return {}; }
};

/// Settings that last as long as the object: for tests, and as the memory of a store with a file.
class MemorySettingsStore : public SettingsStore {
  public:
    [[nodiscard]] std::string value(std::string_view application, std::string_view section,
                                    std::string_view key, std::string_view fallback) const override;
    void setValue(std::string_view application, std::string_view section, std::string_view key,
                  std::string_view value) override;
    void deleteSection(std::string_view application, std::string_view section) override;
    void flush() override {}
    void change(const Edit& edit) override {
        edit(*this);
        flush();
    }

  protected:
    SettingsTable applications;
};

} // namespace tarnel
