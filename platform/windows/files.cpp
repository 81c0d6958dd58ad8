#include "platform/files.h"

#include "platform/windows/system.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <io.h>
#include <limits>

namespace tarnel {

namespace {

constexpr DWORD withAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

OpenFile opened(HANDLE handle) {
    if (handle == INVALID_HANDLE_VALUE)
        return OpenFile(failed());
    return OpenFile(::_open_osfhandle(reinterpret_cast<std::intptr_t>(handle), _O_BINARY));
}

OpenFile openAs(const std::filesystem::path& path, DWORD access, DWORD how) {
    return opened(
        ::CreateFileW(path.c_str(), access, withAll, nullptr, how, FILE_ATTRIBUTE_NORMAL, nullptr));
}

HANDLE handleOf(int file) {
    return reinterpret_cast<HANDLE>(::_get_osfhandle(file));
}

/// No more than one call takes.
unsigned part(std::size_t count) {
    constexpr auto most = static_cast<std::size_t>(std::numeric_limits<int>::max());
    return static_cast<unsigned>(std::min(count, most));
}

std::uint64_t joined(DWORD high, DWORD low) {
    constexpr int bits = 32;
    return std::uint64_t{high} << bits | low;
}

/// The system counts tenths of microseconds since 1601.
std::int64_t secondsSince1970(const FILETIME& time) {
    constexpr std::int64_t ticksPerSecond = 10'000'000;
    constexpr std::int64_t secondsUntil1970 = 11'644'473'600;
    const std::uint64_t ticks = joined(time.dwHighDateTime, time.dwLowDateTime);
    return static_cast<std::int64_t>(ticks) / ticksPerSecond - secondsUntil1970;
}

std::optional<FileFacts> factsOf(HANDLE handle) {
    BY_HANDLE_FILE_INFORMATION found{};
    const bool onDisk = ::GetFileType(handle) == FILE_TYPE_DISK;
    if (!onDisk)
        return FileFacts{};
    if (!::GetFileInformationByHandle(handle, &found)) {
        failed();
        return {};
    }
    FileFacts facts;
    facts.isRegular = (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
    facts.device = found.dwVolumeSerialNumber;
    facts.number = joined(found.nFileIndexHigh, found.nFileIndexLow);
    facts.size = joined(found.nFileSizeHigh, found.nFileSizeLow);
    facts.changed = secondsSince1970(found.ftLastWriteTime);
    return facts;
}

} // namespace

OpenFile::~OpenFile() {
    if (isOpen())
        ::_close(number);
}

OpenFile openToRead(const std::filesystem::path& path) {
    return openAs(path, GENERIC_READ, OPEN_EXISTING);
}

OpenFile openToWrite(const std::filesystem::path& path) {
    return openAs(path, GENERIC_WRITE, OPEN_EXISTING);
}

int standardOutputFile() {
    constexpr int number = 1;
    ::_setmode(number, _O_BINARY);
    return number;
}

std::ptrdiff_t readFile(int file, char* bytes, std::size_t count) {
    return ::_read(file, bytes, part(count));
}

std::ptrdiff_t writeFile(int file, const char* bytes, std::size_t count) {
    return ::_write(file, bytes, part(count));
}

OpenFile openLocked(const std::filesystem::path& path) {
    constexpr DWORD how = LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY;
    OpenFile file = openAs(path, GENERIC_READ | GENERIC_WRITE, OPEN_ALWAYS);
    OVERLAPPED start{};
    if (file.isOpen() && ::LockFileEx(handleOf(file.get()), how, 0, 1, 0, &start))
        return file;
    return OpenFile();
}

std::optional<FileFacts> factsOf(const std::filesystem::path& path) {
    // Folders are opened by this alone.
    const OwnHandle file(::CreateFileW(path.c_str(), FILE_READ_ATTRIBUTES, withAll, nullptr,
                                       OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
    if (file.isOpen())
        return factsOf(file.get());
    failed();
    return {};
}

std::optional<FileFacts> factsOf(int file) {
    return factsOf(handleOf(file));
}

bool areOneFile(const FileFacts& one, const FileFacts& other) {
    return one.number == other.number && one.device == other.device;
}

int refusalToWrite(const std::filesystem::path& path) {
    const DWORD attributes = ::GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0
               ? EACCES
               : 0;
}

/// A new file takes over what its folder lays down.
void takePermissions(int /*file*/, const FileFacts& /*from*/) {}

/// A rename stores the name itself.
void storeFolder(const std::filesystem::path& /*folder*/) {}

/// What lies below the user's own folders has their permissions.
bool isUsersAlone(const std::filesystem::path& folder) {
    std::error_code failure;
    return std::filesystem::is_directory(folder, failure);
}

bool makeUsersAlone(const std::filesystem::path& folder) {
    std::error_code failure;
    std::filesystem::create_directory(folder, failure);
    return !failure;
}

} // namespace tarnel
