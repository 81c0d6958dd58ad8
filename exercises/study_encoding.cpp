#include "exercises/study_encoding.h"

#include <array>
#include <cstdint>

namespace tarnel {

namespace {

/// The characters of the bytes 0x80 to 0x9F, control characters where the code page leaves a byte
/// open. All other bytes stand for themselves.
constexpr std::array<std::uint16_t, 32> windows1252 = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr bool isContinuation(unsigned char byte) {
    return (byte & 0xC0) == 0x80;
}

/// The bytes that a character with this first byte has; 0 if none starts with it.
std::size_t sequenceLength(unsigned char lead) {
    if (lead < 0x80)
        return 1;
    if (lead >= 0xC2 && lead <= 0xDF)
        return 2;
    if ((lead & 0xF0) == 0xE0)
        return 3;
    return lead >= 0xF0 && lead <= 0xF4 ? 4 : 0;
}

/// Whether the second byte keeps the character in its shortest form, below 0x110000 and out of the
/// surrogates.
bool secondByteFits(unsigned char lead, unsigned char second) {
    switch (lead) {
    case 0xE0:
        return second >= 0xA0;
    case 0xED:
        return second < 0xA0;
    case 0xF0:
        return second >= 0x90;
    case 0xF4:
        return second < 0x90;
    default:
        return true;
    }
}

bool isUtf8(std::string_view text) {
    const auto byte = [text](std::size_t at) { return static_cast<unsigned char>(text[at]); };
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t length = sequenceLength(byte(at));
        if (length == 0 || length > text.size() - at)
            return false;
        for (std::size_t i = 1; i < length; ++i)
            if (!isContinuation(byte(at + i)))
                return false;
        if (length > 2 && !secondByteFits(byte(at), byte(at + 1)))
            return false;
        at += length;
    }
    return true;
}

void appendUtf8(std::string& text, std::uint16_t character) {
    const auto append = [&text](int value) { text += static_cast<char>(value); };
    if (character < 0x80) {
        append(character);
    } else if (character < 0x800) {
        append(0xC0 | character >> 6);
        append(0x80 | (character & 0x3F));
    } else {
        append(0xE0 | character >> 12);
        append(0x80 | (character >> 6 & 0x3F));
        append(0x80 | (character & 0x3F));
    }
}

} // namespace

std::string studyText(std::string_view bytes) {
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    if (isUtf8(bytes)) {
        if (bytes.starts_with(byteOrderMark))
            bytes.remove_prefix(byteOrderMark.size());
        return std::string(bytes);
    }
    std::string text;
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        appendUtf8(text, byte >= 0x80 && byte < 0xA0 ? windows1252[byte - 0x80U] : byte);
    }
    return text;
}

std::size_t nextCharacter(std::string_view text, std::size_t at) {
    do
        ++at;
    while (at < text.size() && isContinuation(static_cast<unsigned char>(text[at])));
    return at;
}

} // namespace tarnel
