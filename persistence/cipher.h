#pragma once

#include "core/runtime_random.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace tarnel {

/// The keys that an enciphered file may name.
constexpr int lowestKey = 1;
constexpr int highestKey = 99;

/// A key drawn by chance.
[[nodiscard]] int drawKey(RuntimeRandom& random);

using KeyTable = std::array<std::uint8_t, 16>;

/// The order of 0 to 15 that belongs to `key`. It is drawn from the generator restarted with
/// key × -0.1, so enciphered files of earlier installations can be read.
[[nodiscard]] KeyTable Shuffle2(int key);

/// Combines the characters of lines with the sixteen small numbers of a key. Only the low four bits
/// of a byte change, so bytes from 32 on never become a line end. The place in the key runs on from
/// line to line; line ends (CR and LF) stay as they are and don't count.
class Cipher {
  public:
    explicit Cipher(int key);

    /// Enciphers `lines` in place, which continue those given before.
    void Encrypt(std::span<char> lines) { combine(lines); }
    /// The reverse, which is the same.
    void Decrypt(std::span<char> lines) { combine(lines); }

  private:
    void combine(std::span<char> lines);

    std::array<std::uint8_t, 256> keyTable{}; ///< those of `Shuffle2`, sixteen elements apart
    std::uint8_t keyPosition = 0;             ///< the element to use next
};

} // namespace tarnel
