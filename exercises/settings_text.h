#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>

namespace tarnel {

/// Texts by application, section and key.
using SettingsSection = std::map<std::string, std::string, std::less<>>;
using SettingsApplication = std::map<std::string, SettingsSection, std::less<>>;
using SettingsTable = std::map<std::string, SettingsApplication, std::less<>>;

/// More than the settings of any user take, in bytes.
constexpr std::size_t largestSettings = std::size_t{1} << 20;

/// Reads the text of an INI file: a line "[application]", below it lines "section\key=value". A
/// value may stand in quotes; a backslash begins an escape. What was edited by hand comes back as
/// text, whatever it is; a line of another form is read over.
[[nodiscard]] SettingsTable readSettings(std::string_view text);

/// The same text again: bytes of a key that have a meaning of their own as "%" and two digits,
/// control characters of a value as "\x" and digits. Reads back to the same table.
[[nodiscard]] std::string writeSettings(const SettingsTable& table);

} // namespace tarnel
