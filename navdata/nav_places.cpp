#include "navdata/nav_places.h"

#include "core/plain_text.h"
#include "core/run_time_error.h"
#include "navdata/navaid_fields.h"
#include "persistence/file_bytes.h"
#include "platform/path_text.h"
#include "platform/user.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <string_view>

namespace tarnel {

namespace {

namespace fs = std::filesystem;

std::string setOr(const std::string& value, const std::string& fallback) {
    return value.empty() ? fallback : value;
}

/// The parts of `text` between separators, those that are no path from the root on left out.
std::vector<fs::path> pathsIn(std::string_view text, char separator) {
    std::vector<fs::path> paths;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find(separator), text.size());
        fs::path path = pathOf(trimmed(text.substr(0, end)));
        if (path.is_absolute())
            paths.push_back(std::move(path));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return paths;
}

/// The text of a small file; empty if it can't be read.
std::string contentOf(const fs::path& file) {
    constexpr std::size_t largest = 1 << 16;
    try {
        return readFileBytes(textOf(file), largest);
    } catch (const RunTimeError&) {
        return {};
    }
}

/// By the desktop's own list of folders: XDG_DOWNLOAD_DIR="$HOME/Downloads".
fs::path downloadsBelow(const fs::path& home, const fs::path& configuration) {
    constexpr std::string_view key = "XDG_DOWNLOAD_DIR=\"";
    constexpr std::string_view homeName = "$HOME/";
    const std::string list = contentOf(configuration / "user-dirs.dirs");
    const std::size_t at = list.rfind(key);
    if (at == std::string::npos)
        return home / "Downloads";
    const std::string_view value = std::string_view(list).substr(at + key.size());
    const std::string_view path = value.substr(0, value.find('"'));
    return path.starts_with(homeName) ? home / pathOf(path.substr(homeName.size())) : pathOf(path);
}

/// The entries of a folder whose names begin so, the last by name first.
std::vector<fs::path> entriesOf(const fs::path& folder, std::string_view beginning) {
    std::vector<fs::path> found;
    std::error_code ignored;
    for (fs::directory_iterator entry(folder, ignored); entry != fs::directory_iterator();
         entry.increment(ignored))
        if (textOf(entry->path().filename()).starts_with(beginning))
            found.push_back(entry->path());
    std::ranges::sort(found, std::greater());
    return found;
}

constexpr std::string_view navDat = "Navaids/nav.dat.gz";

std::vector<fs::path> flightGearRoots(const NavFolders& folders) {
    std::vector<fs::path> roots;
    if (!folders.flightGearRoot.empty())
        roots.push_back(folders.flightGearRoot);
    for (const fs::path& root : entriesOf(folders.home / ".fgfs", "fgdata"))
        roots.push_back(root);
    for (const fs::path& data : folders.data) {
        roots.push_back(data / "flightgear");
        roots.push_back(data / "games/flightgear"); // Debian's
    }
    return roots;
}

/// X-Plane's installer notes each installation in a list of its version.
std::vector<fs::path> xPlaneRoots(const NavFolders& folders) {
    std::vector<fs::path> roots;
    for (const fs::path& list : entriesOf(folders.home / ".x-plane", "x-plane_install"))
        std::ranges::move(pathsIn(contentOf(list), '\n'), std::back_inserter(roots));
    return roots;
}

} // namespace

NavFolders usersNavFolders() {
    const fs::path home = pathOf(setOr(homeFolder(), "/"));
    const std::string downloads = downloadsFolder();
    NavFolders folders;
    folders.home = home;
    folders.data =
        pathsIn(setOr(environment("XDG_DATA_HOME"), textOf(home / ".local/share")), pathSeparator);
    std::ranges::move(
        pathsIn(setOr(environment("XDG_DATA_DIRS"), "/usr/local/share:/usr/share"), pathSeparator),
        std::back_inserter(folders.data));
    folders.flightGearRoot = pathOf(environment("FG_ROOT"));
    folders.downloads = downloads.empty()
                            ? downloadsBelow(home, pathOf(setOr(environment("XDG_CONFIG_HOME"),
                                                                textOf(home / ".config"))))
                            : pathOf(downloads);
    return folders;
}

std::vector<NavPlace> findNavData(const NavFolders& folders) {
    std::vector<NavPlace> found;
    const auto add = [&found](NavProgram program, const fs::path& file) {
        std::error_code ignored;
        const bool known = std::ranges::find(found, file, &NavPlace::file) != found.end();
        if (!known && fs::is_regular_file(file, ignored))
            found.push_back({program, file});
    };
    for (const fs::path& root : flightGearRoots(folders))
        add(NavProgram::flightGear, root / navDat);
    for (const fs::path& root : xPlaneRoots(folders)) {
        add(NavProgram::xPlane, root / "Custom Data/earth_nav.dat");
        add(NavProgram::xPlane, root / "Resources/default data/earth_nav.dat");
    }
    add(NavProgram::ourAirports, folders.downloads / "navaids.csv");
    return found;
}

} // namespace tarnel
