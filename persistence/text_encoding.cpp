#include "persistence/text_encoding.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <optional>

namespace tarnel {

namespace {

constexpr unsigned firstHighByte = 0x80;
constexpr unsigned firstLatin1 = 0xA0;

/// Windows-1252 from 0x80 to 0x9F; the rest has the numbers of Unicode.
constexpr std::array<char16_t, firstLatin1 - firstHighByte> middleCharacters = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

std::size_t asciiLength(std::string_view text) {
    constexpr std::uint64_t highBits = 0x8080808080808080;
    std::size_t length = 0;
    std::uint64_t block = 0;
    for (; length + sizeof block <= text.size(); length += sizeof block) {
        std::memcpy(&block, text.data() + length, sizeof block);
        if (block & highBits)
            break;
    }
    while (length < text.size() && static_cast<unsigned char>(text[length]) < firstHighByte)
        ++length;
    return length;
}

/// The form of a UTF-8 sequence, by its first byte.
struct SequenceForm {
    std::size_t length;
    unsigned char firstBits; ///< of the character in the first byte
    char32_t least;          ///< below it the sequence is longer than needed
};

std::optional<SequenceForm> formOf(unsigned char first) {
    if (first >= 0xC2 && first < 0xE0)
        return SequenceForm{2, 0x1F, 0x80};
    if (first >= 0xE0 && first < 0xF0)
        return SequenceForm{3, 0x0F, 0x800};
    if (first >= 0xF0 && first < 0xF5)
        return SequenceForm{4, 0x07, 0x10000};
    return std::nullopt;
}

/// Takes the character beyond ASCII that `text` begins with. Nothing if it isn't UTF-8.
std::optional<char32_t> takeCharacter(std::string_view& text) {
    const auto first = static_cast<unsigned char>(text.front());
    const auto form = formOf(first);
    if (!form || text.size() < form->length)
        return std::nullopt;
    char32_t character = first & form->firstBits;
    for (std::size_t i = 1; i < form->length; ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        if ((byte & 0xC0) != 0x80)
            return std::nullopt;
        character = (character << 6) | (byte & 0x3F);
    }
    const bool surrogate = character >= 0xD800 && character < 0xE000;
    if (character < form->least || character > 0x10FFFF || surrogate)
        return std::nullopt;
    text.remove_prefix(form->length);
    return character;
}

/// `character` is beyond ASCII and within 16 bits.
void appendUtf8(std::string& text, char16_t character) {
    if (character < 0x800) {
        text += static_cast<char>(0xC0 | (character >> 6));
    } else {
        text += static_cast<char>(0xE0 | (character >> 12));
        text += static_cast<char>(0x80 | ((character >> 6) & 0x3F));
    }
    text += static_cast<char>(0x80 | (character & 0x3F));
}

std::optional<char> windows1252Byte(char32_t character) {
    if (character >= firstLatin1 && character <= 0xFF)
        return static_cast<char>(character);
    for (std::size_t i = 0; i < middleCharacters.size(); ++i)
        if (middleCharacters[i] == character)
            return static_cast<char>(firstHighByte + i);
    return std::nullopt;
}

std::optional<std::string> toWindows1252(std::string_view text) {
    std::string bytes;
    bytes.reserve(text.size());
    while (!text.empty()) {
        const std::size_t plain = asciiLength(text);
        bytes += text.substr(0, plain);
        text.remove_prefix(plain);
        if (text.empty())
            break;
        const auto character = takeCharacter(text);
        const auto byte = character ? windows1252Byte(*character) : std::nullopt;
        if (!byte)
            return std::nullopt;
        bytes += *byte;
    }
    return bytes;
}

} // namespace

TextEncoding encodingOf(std::string_view bytes) {
    for (;;) {
        bytes.remove_prefix(asciiLength(bytes));
        if (bytes.empty())
            return TextEncoding::utf8;
        if (!takeCharacter(bytes))
            return TextEncoding::windows1252;
    }
}

std::string toUtf8(std::string_view bytes, TextEncoding encoding) {
    if (encoding == TextEncoding::utf8)
        return std::string(bytes);
    std::string text;
    text.reserve(bytes.size());
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < firstHighByte)
            text += c;
        else
            appendUtf8(text, byte < firstLatin1 ? middleCharacters[byte - firstHighByte] : byte);
    }
    return text;
}

std::string encodeForFile(std::string text) {
    if (asciiLength(text) == text.size())
        return text;
    auto bytes = toWindows1252(text);
    if (bytes && encodingOf(*bytes) == TextEncoding::windows1252)
        return std::move(*bytes);
    return text;
}

std::string_view withoutByteOrderMark(std::string_view bytes) {
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    if (bytes.starts_with(byteOrderMark))
        bytes.remove_prefix(byteOrderMark.size());
    return bytes;
}

std::size_t nextCharacter(std::string_view text, std::size_t at) {
    const auto continues = [&] { return (static_cast<unsigned char>(text[at]) & 0xC0) == 0x80; };
    do
        ++at;
    while (at < text.size() && continues());
    return at;
}

std::size_t characterCount(std::string_view text) {
    return static_cast<std::size_t>(std::ranges::count_if(
        text, [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
}

std::string_view firstCharacters(std::string_view text, std::size_t most) {
    if (text.size() <= most)
        return text;
    std::size_t end = 0;
    for (std::size_t i = 0; i < most && end < text.size(); ++i)
        end = nextCharacter(text, end);
    return text.substr(0, end);
}

} // namespace tarnel
