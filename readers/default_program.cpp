#include "readers/default_program.h"

#include "platform/path_text.h"
#include "readers/key_file.h"

#include <filesystem>
#include <sstream>
#include <vector>

namespace tarnel {

namespace {

/// The lists of a folder: those of the desktop that runs, then the one for all.
void addLists(std::vector<std::string>& lists, const std::string& folder,
              const DesktopFolders& folders) {
    for (const std::string& desktop : folders.desktops)
        lists.push_back(std::string(folder).append("/").append(desktop).append("-mimeapps.list"));
    lists.push_back(folder + "/mimeapps.list");
}

std::vector<std::string> mimeLists(const DesktopFolders& folders) {
    std::vector<std::string> lists;
    for (const std::string& folder : folders.config)
        addLists(lists, folder, folders);
    for (const std::string& folder : folders.data)
        addLists(lists, folder + "/applications", folders);
    return lists;
}

/// The file of an entry in a folder: a dash of its name may stand for a folder below.
std::optional<std::string> entryIn(const std::string& folder, std::string id) {
    std::error_code failure;
    std::size_t dash = 0;
    while (true) {
        const std::string path = std::string(folder).append("/applications/").append(id);
        if (std::filesystem::is_regular_file(pathOf(path), failure))
            return path;
        dash = id.find('-', dash);
        if (dash == std::string::npos)
            return {};
        id[dash] = '/';
    }
}

/// The first folder that has the entry decides what it is.
std::optional<DesktopEntry> entryNamed(const std::string& id, const DesktopFolders& folders) {
    if (id.find('/') == std::string::npos)
        for (const std::string& folder : folders.data)
            if (const std::optional<std::string> path = entryIn(folder, id))
                return readDesktopEntry(*path, folders);
    return {};
}

} // namespace

std::optional<DesktopEntry> defaultProgram(const std::string& mimeType,
                                           const DesktopFolders& folders) {
    for (const std::string& list : mimeLists(folders)) {
        const KeyGroup defaults = readKeyGroup(list, "Default Applications");
        const auto named = defaults.find(mimeType);
        if (named == defaults.end())
            continue;
        std::istringstream rest(named->second);
        for (std::string id; std::getline(rest, id, ';');)
            if (std::optional<DesktopEntry> entry = entryNamed(id, folders))
                return entry;
    }
    return {};
}

} // namespace tarnel
