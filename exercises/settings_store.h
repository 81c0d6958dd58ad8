#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>

namespace tarnel {

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

  protected:
    using Section = std::map<std::string, std::string, std::less<>>;
    using Application = std::map<std::string, Section, std::less<>>;
    std::map<std::string, Application, std::less<>> applications;
};

} // namespace tarnel
