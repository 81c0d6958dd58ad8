#include "readers/desktop_folders.h"

#include "core/plain_text.h"
#include "platform/path_text.h"
#include "platform/programs.h"
#include "platform/user.h"

#include <algorithm>
#include <sstream>

namespace tarnel {

namespace {

std::vector<std::string> parts(const std::string& list, char separator = ':') {
    std::vector<std::string> all;
    std::istringstream rest(list);
    for (std::string part; std::getline(rest, part, separator);)
        all.push_back(part);
    return all;
}

/// A path that does not begin at the root counts as none.
void add(std::vector<std::string>& folders, const std::string& list) {
    for (const std::string& folder : parts(list, pathSeparator))
        if (pathOf(folder).is_absolute())
            folders.push_back(folder);
}

} // namespace

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
    if (pathOf(name).is_absolute())
        return runnable(name);
    if (name.empty() || name.find('/') != std::string::npos)
        return {};
    for (const std::string& folder : programs) {
        if (auto found = runnable(std::string(folder).append("/").append(name)))
            return found;
    }
    return {};
}

} // namespace tarnel
