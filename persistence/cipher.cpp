#include "persistence/cipher.h"

#include <cstring>

namespace tarnel {

namespace {

constexpr std::size_t tableSize = std::tuple_size_v<KeyTable>;

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
    for (std::size_t i = 0; i < keyTable.size(); ++i)
        keyTable[i] = static_cast<char>(table[i % tableSize]);
}

void Cipher::combine(std::span<char> lines) {
    while (!lines.empty()) {
        const void* end = std::memchr(lines.data(), '\n', lines.size());
        const auto length =
            end ? static_cast<std::size_t>(static_cast<const char*>(end) - lines.data())
                : lines.size();
        const bool endsInReturn = length > 0 && lines[length - 1] == '\r';
        combineLine(lines.data(), endsInReturn ? length - 1 : length);
        lines = lines.subspan(end ? length + 1 : length);
    }
}

void Cipher::combineLine(char* line, std::size_t length) {
    const char* keys = keyTable.data() + keyPosition;
    // A run of sixteen ends at the place in the key where it began.
    for (; length >= tableSize; line += tableSize, length -= tableSize)
        for (std::size_t i = 0; i < tableSize; ++i)
            line[i] = static_cast<char>(line[i] ^ keys[i]);
    for (std::size_t i = 0; i < length; ++i)
        line[i] = static_cast<char>(line[i] ^ keys[i]);
    keyPosition = (keyPosition + length) % tableSize;
}

} // namespace tarnel
