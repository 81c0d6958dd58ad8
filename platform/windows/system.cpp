#include "platform/windows/system.h"

#include <cerrno>

namespace tarnel {

std::wstring wide(std::string_view text) {
    const int size = static_cast<int>(text.size());
    const int needed = ::MultiByteToWideChar(CP_UTF8, 0, text.data(), size, nullptr, 0);
    std::wstring all(static_cast<std::size_t>(needed), L'\0');
    ::MultiByteToWideChar(CP_UTF8, 0, text.data(), size, all.data(), needed);
    return all;
}

std::string narrow(std::wstring_view text) {
    const int size = static_cast<int>(text.size());
    const int needed =
        ::WideCharToMultiByte(CP_UTF8, 0, text.data(), size, nullptr, 0, nullptr, nullptr);
    std::string all(static_cast<std::size_t>(needed), '\0');
    ::WideCharToMultiByte(CP_UTF8, 0, text.data(), size, all.data(), needed, nullptr, nullptr);
    return all;
}

int failed() {
    switch (::GetLastError()) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_DRIVE:
    case ERROR_BAD_NETPATH:
    case ERROR_BAD_NET_NAME:
    case ERROR_INVALID_NAME:
    case ERROR_BAD_PATHNAME:
        errno = ENOENT;
        break;
    case ERROR_FILE_EXISTS:
    case ERROR_ALREADY_EXISTS:
        errno = EEXIST;
        break;
    case ERROR_ACCESS_DENIED:
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
        errno = EACCES;
        break;
    case ERROR_WRITE_PROTECT:
        errno = EROFS;
        break;
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
        errno = ENOSPC;
        break;
    case ERROR_FILENAME_EXCED_RANGE:
    case ERROR_BUFFER_OVERFLOW:
        errno = ENAMETOOLONG;
        break;
    case ERROR_CRC:
    case ERROR_NOT_READY:
    case ERROR_IO_DEVICE:
    case ERROR_WRITE_FAULT:
    case ERROR_READ_FAULT:
        errno = EIO;
        break;
    default:
        errno = EINVAL;
    }
    return -1;
}

} // namespace tarnel
