#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <utility>

namespace tarnel {

/// An open file by its number, closed at the end; -1 if it could not be opened.
class OpenFile {
  public:
    explicit OpenFile(int file = -1) : number(file) {}
    OpenFile(OpenFile&& other) noexcept : number(std::exchange(other.number, -1)) {}
    OpenFile& operator=(OpenFile&& other) noexcept {
        std::swap(number, other.number);
        return *this;
    }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;
    ~OpenFile();

    [[nodiscard]] bool isOpen() const { return number >= 0; }
    [[nodiscard]] int get() const { return number; }
    /// Leaves the closing to the caller.
    [[nodiscard]] int release() { return std::exchange(number, -1); }

  private:
    int number;
};

/// Opens a file for reading, without waiting for anything. Sets errno when it fails.
[[nodiscard]] OpenFile openToRead(const std::filesystem::path& path);
/// Opens a pipe or a device for writing. Sets errno when it fails.
[[nodiscard]] OpenFile openToWrite(const std::filesystem::path& path);
/// The number of standard output, which takes bytes as they are.
[[nodiscard]] int standardOutputFile();

/// How many bytes were read or written, 0 at the end of a file; -1 and errno when it failed.
[[nodiscard]] std::ptrdiff_t readFile(int file, char* bytes, std::size_t count);
[[nodiscard]] std::ptrdiff_t writeFile(int file, const char* bytes, std::size_t count);

/// Opens a file that is the user's alone, made if need be, and locks it; not open if another
/// program has the lock. The lock lasts as long as the file is open.
[[nodiscard]] OpenFile openLocked(const std::filesystem::path& path);

/// What the system knows of a file.
struct FileFacts {
    bool isRegular = false;   ///< and no folder, device or pipe
    std::uint64_t device = 0; ///< what it lies on
    std::uint64_t number = 0; ///< which it is there
    std::size_t size = 0;     ///< bytes
    std::int64_t changed = 0; ///< when it was last written, seconds since 1970 UTC
    unsigned permissions = 0; ///< these three are 0 where the system keeps no such numbers
    unsigned owner = 0;
    unsigned group = 0;
};

/// Of the file behind any links. Nothing, and errno, if there is none.
[[nodiscard]] std::optional<FileFacts> factsOf(const std::filesystem::path& path);
[[nodiscard]] std::optional<FileFacts> factsOf(int file);
[[nodiscard]] bool areOneFile(const FileFacts& one, const FileFacts& other);

/// Why the program may not write to a file, as errno has it; 0 if it may.
[[nodiscard]] int refusalToWrite(const std::filesystem::path& path);
/// Gives an open file the owner, the group and the permissions of another. Where the group can't be
/// had it gets no more than everybody has. Not every disk knows permissions: there it goes without.
void takePermissions(int file, const FileFacts& from);
/// Has the names in a folder stored, as far as the system can.
void storeFolder(const std::filesystem::path& folder);

/// Whether a folder is the user's and nobody else may look into it.
[[nodiscard]] bool isUsersAlone(const std::filesystem::path& folder);
/// Makes such a folder unless there is something of that name. False if that failed.
[[nodiscard]] bool makeUsersAlone(const std::filesystem::path& folder);

} // namespace tarnel
