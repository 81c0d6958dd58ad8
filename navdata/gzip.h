#pragma once

#include <cstddef>
#include <string>

namespace tarnel {

struct Unpacked {
    std::string bytes;
    bool whole = true; ///< false: what was packed ends too early or is damaged behind `bytes`
};

/// The content of a gzip file, of several that were put together too; what is none comes back as it
/// is. Throws `Cause::fileTooLarge` for a content of more than `limit` bytes.
[[nodiscard]] Unpacked unpacked(std::string bytes, std::size_t limit);

} // namespace tarnel
