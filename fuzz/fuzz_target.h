#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

/// What each target defines: reads `size` bytes as a file of its kind. Returns 0; what must not be
/// ends the process.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace tarnel {

inline std::string asText(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}

/// Ends the process, so that the input is reported, unless `holds`.
inline void require(bool holds) {
    if (!holds)
        std::abort();
}

} // namespace tarnel
