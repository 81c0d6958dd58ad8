#include "window/frame/file_settings.h"

#include "persistence/file_bytes.h"
#include "persistence/lock_file.h"
#include "persistence/save_file.h"

#include <QStandardPaths>

#include <chrono>
#include <filesystem>
#include <thread>
#include <utility>

namespace tarnel {

namespace {

using namespace std::chrono_literals;

/// An empty table if there is no file.
SettingsTable readFile(const std::string& path) {
    try {
        return readSettings(readFileBytes(path, largestSettings));
    } catch (const RunTimeError& error) {
        if (error.cause() != Cause::fileNotFound)
            throw;
        return {};
    }
}

/// Waits for another program's change to end, but not for one that hangs.
LockFile lockFor(const std::string& path, std::chrono::milliseconds patience) {
    constexpr auto pause = 5ms;
    const auto end = std::chrono::steady_clock::now() + patience;
    do {
        if (auto lock = LockFile::take(path + ".lock"))
            return std::move(*lock);
        std::this_thread::sleep_for(pause);
    } while (std::chrono::steady_clock::now() < end);
    throw RunTimeError(Cause::fileInUse);
}

} // namespace

FileSettings::FileSettings(std::string file) : path(std::move(file)) {
    try {
        applications = readFile(path);
    } catch (const RunTimeError& error) {
        note(error);
    }
}

FileSettings::~FileSettings() {
    constexpr auto lastPatience = 900ms;
    flushWithin(lastPatience);
}

void FileSettings::note(const RunTimeError& error) {
    if (!std::exchange(troubleTold, true))
        trouble = {path, error.cause()};
}

std::optional<SettingsTrouble> FileSettings::takeTrouble() {
    return std::exchange(trouble, {});
}

void FileSettings::setValue(std::string_view application, std::string_view section,
                            std::string_view key, std::string_view text) {
    if (value(application, section, key, {}) == text && !text.empty())
        return;
    MemorySettingsStore::setValue(application, section, key, text);
    if (!editing)
        pending.push_back([application = std::string(application), section = std::string(section),
                           key = std::string(key), text = std::string(text)](SettingsStore& store) {
            store.setValue(application, section, key, text);
        });
}

void FileSettings::deleteSection(std::string_view application, std::string_view section) {
    MemorySettingsStore::deleteSection(application, section);
    if (!editing)
        pending.push_back([application = std::string(application),
                           section = std::string(section)](SettingsStore& store) {
            // Another program may have deleted it meanwhile.
            store.setValue(application, section, {}, {});
            store.deleteSection(application, section);
        });
}

/// The change holds at once, whether or not it can be kept.
void FileSettings::change(const Edit& edit) {
    editing = true;
    edit(*this);
    editing = false;
    pending.push_back(edit);
    flush();
}

/// Once it was in vain, nobody waits again until the program ends.
void FileSettings::flush() {
    constexpr auto patience = 500ms;
    flushWithin(troubleTold ? 0ms : patience);
}

void FileSettings::flushWithin(std::chrono::milliseconds patience) {
    if (pending.empty())
        return;
    try {
        std::error_code failure; // told by the lock
        std::filesystem::create_directories(std::filesystem::path(path).parent_path(), failure);
        makeChanges(patience);
        pending.clear();
    } catch (const RunTimeError& error) {
        note(error);
    }
}

void FileSettings::makeChanges(std::chrono::milliseconds patience) {
    const LockFile lock = lockFor(path, patience);
    const SettingsTable kept = readFile(path);
    applications = kept;
    editing = true;
    for (const Edit& edit : pending)
        edit(*this);
    editing = false;
    if (applications == kept)
        return;
    const std::string text = writeSettings(applications);
    if (text.size() > largestSettings)
        throw RunTimeError(Cause::fileTooLarge); // it could not be read again
    saveFileBytes(path, text);
}

std::string userSettingsFile() {
    return (QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation) +
            QStringLiteral("/settings.ini"))
        .toStdString();
}

} // namespace tarnel
