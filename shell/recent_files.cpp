#include "shell/recent_files.h"

#include <algorithm>
#include <string_view>

namespace tarnel {

namespace {

constexpr std::size_t mostFiles = 8;
constexpr std::string_view application = "tarnel";
constexpr std::string_view section = "files";
constexpr std::string_view key = "recent";

std::vector<std::string> listed(const SettingsStore& settings) {
    const std::string text = settings.value(application, section, key, {});
    std::vector<std::string> paths;
    for (std::size_t begin = 0; begin < text.size() && paths.size() < mostFiles;) {
        const std::size_t end = std::min(text.find('\n', begin), text.size());
        if (end > begin)
            paths.push_back(text.substr(begin, end - begin));
        begin = end + 1;
    }
    return paths;
}

void putFirst(SettingsStore& settings, const std::string& path) {
    std::vector<std::string> paths = listed(settings);
    std::erase(paths, path);
    paths.resize(std::min(paths.size(), mostFiles - 1));
    std::string text = path;
    for (const std::string& other : paths)
        text += '\n' + other;
    settings.setValue(application, section, key, text);
}

} // namespace

std::vector<std::string> RecentFiles::paths() const {
    return listed(settings);
}

void RecentFiles::note(const std::string& path) {
    if (path.starts_with('/') && path.find('\n') == std::string::npos)
        settings.change([path](SettingsStore& store) { putFirst(store, path); });
}

void RecentFiles::clear() {
    settings.change([](SettingsStore& store) { store.setValue(application, section, key, {}); });
}

} // namespace tarnel
