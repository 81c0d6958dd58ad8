#include "platform/disk_calls.h"

#include "platform/files.h"
#include "platform/windows/system.h"

#include <cerrno>
#include <fcntl.h>
#include <io.h>

namespace tarnel {

int DiskCalls::create(const char* path) {
    const HANDLE file = ::CreateFileW(wide(path).c_str(), GENERIC_WRITE | FILE_READ_ATTRIBUTES,
                                      FILE_SHARE_READ | FILE_SHARE_DELETE, nullptr, CREATE_NEW,
                                      FILE_ATTRIBUTE_NORMAL, nullptr);
    return file == INVALID_HANDLE_VALUE
               ? failed()
               : ::_open_osfhandle(reinterpret_cast<std::intptr_t>(file), _O_BINARY);
}

std::ptrdiff_t DiskCalls::write(int file, const char* bytes, std::size_t count) {
    return writeFile(file, bytes, count);
}

int DiskCalls::fsync(int file) {
    const auto handle = reinterpret_cast<HANDLE>(::_get_osfhandle(file));
    return ::FlushFileBuffers(handle) ? 0 : failed();
}

int DiskCalls::close(int file) {
    return ::_close(file);
}

/// Comes back when the new name is on the disk. Who reads the old file, as a guard against viruses
/// does, keeps it from being replaced; that takes moments.
int DiskCalls::rename(const char* from, const char* to) {
    constexpr DWORD how = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
    constexpr int mostTries = 20;
    constexpr DWORD pause = 10; // milliseconds
    const std::wstring present = wide(from), wanted = wide(to);
    for (int i = 1; !::MoveFileExW(present.c_str(), wanted.c_str(), how); ++i) {
        const DWORD error = ::GetLastError();
        if (i == mostTries || (error != ERROR_ACCESS_DENIED && error != ERROR_SHARING_VIOLATION))
            return failed();
        ::Sleep(pause);
    }
    return 0;
}

bool meansDiskFull(int error) {
    return error == ENOSPC || error == EFBIG;
}

} // namespace tarnel
