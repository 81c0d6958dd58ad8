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

/// Makes `bytes` the content of the file at `path` (UTF-8; "/" or "\" between the folders): writes
/// a new file in the same folder, has it stored, and gives it the name. So at any moment there is
/// either the file as it was or the new one, whole. What goes wrong leaves the file as it was and
/// no other behind; only a program that is killed may leave one named ".tarnel-…tmp".
///
/// A link stays and its target changes. The permissions of an existing file stay; one that may not
/// be written, and what is no file, is refused. Throws the run-time error 61 on a full disk, 76
/// without the folder, 57 when the disk fails, else 75.
void saveFileBytes(const std::string& path, std::string_view bytes);
void saveFileBytes(const std::string& path, std::string_view bytes, DiskCalls& disk);

} // namespace tarnel
