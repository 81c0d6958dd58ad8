#include "persistence/scratch_folder.h"

#include "core/number_text.h"
#include "persistence/file_path.h"
#include "platform/path_text.h"
#include "platform/process.h"

#include <filesystem>
#include <vector>

namespace tarnel {

namespace {

namespace fs = std::filesystem;

constexpr const char* prefix = "scratch-";
constexpr const char* lockSuffix = ".lock";

/// The scratch folders below `parent`, and those of which only the lock is left.
std::vector<fs::path> foldersIn(const fs::path& parent) {
    std::vector<fs::path> found;
    std::error_code failure;
    for (auto entry = fs::directory_iterator(parent, failure);
         !failure && entry != fs::directory_iterator(); entry.increment(failure))
        if (textOf(entry->path().filename()).starts_with(prefix))
            found.push_back(parent / entry->path().stem());
    return found;
}

std::optional<LockFile> lockOf(const fs::path& folder) {
    return LockFile::take(textOf(folder) + lockSuffix);
}

} // namespace

ScratchFolder::ScratchFolder(const std::string& parent) {
    constexpr int mostTries = 100;
    const fs::path place = portablePath(parent);
    std::error_code failure;
    fs::create_directories(place, failure);
    for (const fs::path& left : foldersIn(place))
        if (const auto abandoned = lockOf(left))
            fs::remove_all(left, failure);
    for (int i = 0; i < mostTries && folder.empty(); ++i) {
        const fs::path own = place / (prefix + numberText(std::int64_t{ownProcess()}) + "-" +
                                      numberText(std::int64_t{i}));
        lock = lockOf(own);
        if (lock && fs::create_directory(own, failure))
            folder = textOf(own);
    }
}

ScratchFolder::~ScratchFolder() {
    std::error_code ignored;
    if (!folder.empty())
        fs::remove_all(pathOf(folder), ignored);
}

} // namespace tarnel
