#pragma once

#include <string>
#include <string_view>
#include <sys/types.h>

namespace tarnel {

/// The calls by which a save reaches the disk. Each returns what the system's call of its name
/// does, and sets errno when it fails.
class DiskCalls {
  public:
    DiskCalls() = default;
    DiskCalls(const DiskCalls&) = delete;
    DiskCalls& operator=(const DiskCalls&) = delete;
    virtual ~DiskCalls() = default;

    /// Makes a new file and opens it for writing; fails if there is one.
    virtual int create(const char* path);
    virtual ssize_t write(int file, const char* bytes, std::size_t count);
    virtual int fsync(int file);
    virtual int close(int file);
    virtual int rename(const char* from, const char* to);
};

/// Makes `bytes` the content of the file at `path` (any bytes; "/" between the folders): writes a
/// new file in the same folder, has it stored, and gives it the name. So at any moment there is
/// either the file as it was or the new one, whole. What goes wrong leaves the file as it was and
/// no other behind; only a program that is killed may leave one named ".tarnel-…tmp", which a later
/// save in that folder removes.
///
/// A link stays and its target changes, or comes to be. Permissions and group of an existing file
/// stay; where the group can't be kept, it gets no more than everybody has. A file that may not be
/// written, and what is no file, is refused. Throws a run-time error that tells the cause.
void saveFileBytes(const std::string& path, std::string_view bytes);
void saveFileBytes(const std::string& path, std::string_view bytes, DiskCalls& disk);

/// Makes a limit on the size of files an error like a full disk; without it a write beyond the
/// limit ends the program. To be called once, by `main`.
void makeFileSizeLimitAnError();

} // namespace tarnel
