#include "persistence/cipher.h"

namespace tarnel {

namespace {

constexpr std::size_t tableSize = std::tuple_size_v<KeyTable>;

/// From one place in the key to the next: the sixteenth comes back to 0 in eight bits.
constexpr std::uint8_t placeStep = 16;

/// By byte: all bits if it takes part, none if it ends a line.
constexpr std::array<std::uint8_t, 256> countingBits = [] {
    std::array<std::uint8_t, 256> bits{};
    bits.fill(0xFF);
    bits['\r'] = bits['\n'] = 0;
    return bits;
}();

} // namespace

int drawKey(RuntimeRandom& random) {
    return lowestKey + random.below(highestKey);
}

KeyTable Shuffle2(int key) {
    constexpr int mostAttempts = 1000;
    RuntimeRandom random;
    random.restart(static_cast<float>(key * -0.1));
    KeyTable table{};
    std::array<bool, tableSize> taken{};
    for (std::uint8_t& entry : table) {
        int drawn = 0;
        int attempts = 0;
        do {
            drawn = random.below(static_cast<int>(tableSize));
            ++attempts;
        } while (taken[static_cast<std::size_t>(drawn)] && attempts <= mostAttempts);
        taken[static_cast<std::size_t>(drawn)] = true;
        entry = static_cast<std::uint8_t>(drawn);
    }
    return table;
}

Cipher::Cipher(int key) {
    const KeyTable table = Shuffle2(key);
    for (std::size_t i = 0; i < tableSize; ++i)
        keyTable[i * placeStep] = table[i];
}

// Lines are short: a branch at the end of each would cost more than all the rest. Four characters a
// turn keep the time even, wherever the loop comes to lie in memory.
void Cipher::combine(std::span<char> lines) {
    const auto keys = keyTable;
    std::uint8_t position = keyPosition;
    const auto combineNext = [&keys, &position](char& c) {
        const std::uint8_t counts = countingBits[static_cast<unsigned char>(c)];
        c = static_cast<char>(c ^ (keys[position] & counts));
        position = static_cast<std::uint8_t>(position + (counts & placeStep));
    };
    for (; lines.size() >= 4; lines = lines.subspan(4)) {
        combineNext(lines[0]);
        combineNext(lines[1]);
        combineNext(lines[2]);
        combineNext(lines[3]);
    }
    for (char& c : lines)
        combineNext(c);
    keyPosition = position;
}

} // namespace tarnel
