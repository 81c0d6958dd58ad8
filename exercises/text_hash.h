#pragma once

#include <cstdint>
#include <string_view>

namespace tarnel {

/// A text as 64 bits that are the same in every build: FNV-1a (Fowler, Noll, Vo).
[[nodiscard]] constexpr std::uint64_t textHash(std::string_view text) {
    constexpr std::uint64_t start = 0xcbf29ce484222325;
    constexpr std::uint64_t prime = 0x100000001b3;
    std::uint64_t hash = start;
    for (const char c : text)
        hash = (hash ^ static_cast<unsigned char>(c)) * prime;
    return hash;
}

} // namespace tarnel
