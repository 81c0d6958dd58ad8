#include "log/log_folder.h"

#include "core/run_time_error.h"
#include "persistence/file_bytes.h"
#include "persistence/save_file.h"
#include "persistence/session_file.h"
#include "platform/path_text.h"
#include "platform/process.h"
#include "shell/training_log.h"

#include <filesystem>

namespace tarnel {

namespace {

namespace fs = std::filesystem;

constexpr const char* flightFolder = "/flights/";
constexpr const char* asideMark = "-damaged-";

/// The first of "NAME", "NAME-2", "NAME-3" and so on, with `suffix`, that is free.
std::string freeName(const std::string& name, const std::string& suffix) {
    std::string tried = name + suffix;
    std::error_code ignored;
    for (int count = 2; fs::exists(pathOf(tried), ignored); ++count)
        tried = std::string(name).append("-").append(std::to_string(count)).append(suffix);
    return tried;
}

} // namespace

void LogFolder::prepare() const {
    std::error_code failure;
    fs::create_directories(pathOf(folder + flightFolder), failure);
    if (failure)
        throw LogFailure(LogTrouble::unwritable, folder + ": " + failure.message());
}

/// No other program gives the name: it has this program's number.
std::string LogFolder::store(const std::string& session, std::int64_t when) const {
    const std::string path = freeName(
        folder + flightFolder + std::to_string(when) + "-" + std::to_string(ownProcess()), ".ts");
    try {
        saveFileBytes(path, session);
    } catch (const RunTimeError& error) {
        throw LogFailure(LogTrouble::unwritable, error.what());
    }
    return textOf(pathOf(path).filename());
}

std::optional<std::string> LogFolder::read(const std::string& name) const {
    try {
        return readFileBytes(folder + flightFolder + name, largestSession);
    } catch (const RunTimeError&) {
        return {};
    }
}

void LogFolder::remove(const std::string& name) const {
    std::error_code ignored;
    if (!name.empty())
        fs::remove(pathOf(folder + flightFolder + name), ignored);
}

std::set<std::string> LogFolder::sessions() const {
    std::set<std::string> names;
    std::error_code failure;
    for (fs::directory_iterator entry(pathOf(folder + flightFolder), failure), end;
         !failure && entry != end; entry.increment(failure))
        names.insert(textOf(entry->path().filename()));
    return names;
}

void LogFolder::removeAllSessions() const {
    std::error_code ignored;
    fs::remove_all(pathOf(folder + flightFolder), ignored);
    prepare();
}

std::string LogFolder::setAside() const {
    std::string name = freeName(folder + asideMark + "1", "");
    std::error_code failure;
    fs::rename(pathOf(folder), pathOf(name), failure);
    if (failure)
        throw LogFailure(LogTrouble::unwritable, folder + ": " + failure.message());
    return name;
}

void LogFolder::removeSetAside() const {
    const fs::path place = pathOf(folder);
    const std::string mark = textOf(place.filename()) + asideMark;
    std::error_code failure;
    std::vector<fs::path> found;
    for (fs::directory_iterator entry(place.parent_path(), failure), end; !failure && entry != end;
         entry.increment(failure))
        if (textOf(entry->path().filename()).starts_with(mark))
            found.push_back(entry->path());
    for (const fs::path& each : found)
        fs::remove_all(each, failure);
}

} // namespace tarnel
