#include "readers/desktop_folders.h"

#include "core/plain_text.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <unistd.h>

namespace tarnel {

namespace {

std::vector<std::string> parts(const std::string& list) {
    std::vector<std::string> all;
    std::istringstream rest(list);
    for (std::string part; std::getline(rest, part, ':');)
        all.push_back(part);
    return all;
}

/// A path that does not begin at the root counts as none.
void add(std::vector<std::string>& folders, const std::string& list) {
    for (const std::string& folder : parts(list))
        if (folder.starts_with('/'))
            folders.push_back(folder);
}

bool runs(const std::string& path) {
    std::error_code failure;
    return std::filesystem::is_regular_file(path, failure) && access(path.c_str(), X_OK) == 0;
}

} // namespace

std::string ownEnvironment(const char* name) {
    const char* value = std::getenv(name);
    return value ? value : "";
}

DesktopFolders::DesktopFolders(const Environment& environment) {
    const auto either = [&](const char* name, const std::string& usual) {
        const std::string value = environment(name);
        return value.empty() ? usual : value;
    };
    const std::string home = environment("HOME");
    add(config, either("XDG_CONFIG_HOME", home + "/.config"));
    add(config, either("XDG_CONFIG_DIRS", "/etc/xdg"));
    add(data, either("XDG_DATA_HOME", home + "/.local/share"));
    add(data, either("XDG_DATA_DIRS", "/usr/local/share:/usr/share"));
    add(programs, environment("PATH"));
    desktops = parts(lowerCase(environment("XDG_CURRENT_DESKTOP")));
}

std::optional<std::string> DesktopFolders::program(const std::string& name) const {
    if (name.starts_with('/'))
        return runs(name) ? std::optional(name) : std::nullopt;
    if (name.empty() || name.find('/') != std::string::npos)
        return {};
    for (const std::string& folder : programs) {
        std::string path = std::string(folder).append("/").append(name);
        if (runs(path))
            return path;
    }
    return {};
}

} // namespace tarnel
