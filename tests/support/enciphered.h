#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tarnel {

/// The lines of `body` (ended by LF or CR LF) enciphered with key 7, character by character.
inline std::string encipheredWithKey7(std::string_view body) {
    constexpr unsigned char table[] = {8, 12, 5, 9, 11, 3, 14, 6, 7, 15, 4, 2, 13, 10, 1, 0};
    std::string text;
    std::size_t position = 0;
    for (const char c : body) {
        if (c == '\r' || c == '\n')
            text += c;
        else
            text += static_cast<char>(c ^ table[position++ % 16]);
    }
    return text;
}

} // namespace tarnel
