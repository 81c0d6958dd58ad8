#pragma once

#include <cstddef>

namespace tarnel {

/// The calls by which a save reaches the disk. Each is the system's own of that purpose, returns -1
/// when it fails, and sets errno then.
class DiskCalls {
  public:
    DiskCalls() = default;
    DiskCalls(const DiskCalls&) = delete;
    DiskCalls& operator=(const DiskCalls&) = delete;
    virtual ~DiskCalls() = default;

    /// Makes a new file and opens it for writing; fails if there is one.
    virtual int create(const char* path);
    virtual std::ptrdiff_t write(int file, const char* bytes, std::size_t count);
    /// Comes back when the file is on the disk.
    virtual int fsync(int file);
    virtual int close(int file);
    /// Puts a file in the place of another at once: there always is one of the two.
    virtual int rename(const char* from, const char* to);
};

/// Whether an error means that there is no room left, for anyone or for this user.
[[nodiscard]] bool meansDiskFull(int error);

} // namespace tarnel
