#include "navdata/search_text.h"

#include "persistence/text_encoding.h"

namespace tarnel {

namespace {

constexpr char32_t firstAccented = 0xC0;
constexpr char noLetter = ' ';
/// The letters U+00C0 to U+017F without their accents; the signs of times and division among them
/// are none.
constexpr std::string_view plainLetters = "aaaaaaaceeeeiiiidnooooo ouuuuyts" // U+00C0
                                          "aaaaaaaceeeeiiiidnooooo ouuuuyty" // U+00E0
                                          "aaaaaaccccccccdd"                 // U+0100
                                          "ddeeeeeeeeeegggg"                 // U+0110
                                          "gggghhhhiiiiiiii"                 // U+0120
                                          "iiiijjkkklllllll"                 // U+0130
                                          "lllnnnnnnnnnoooo"                 // U+0140
                                          "oooorrrrrrssssss"                 // U+0150
                                          "ssttttttuuuuuuuu"                 // U+0160
                                          "uuuuwwyyyzzzzzzs";                // U+0170

/// The character of two bytes whose letter is in the table; else 0.
char plainLetter(std::string_view character) {
    if (character.size() != 2)
        return 0;
    const auto lead = static_cast<unsigned char>(character[0]);
    const auto trail = static_cast<unsigned char>(character[1]);
    const char32_t code = static_cast<char32_t>((lead & 0x1F) << 6) | (trail & 0x3F);
    if (code < firstAccented || code - firstAccented >= plainLetters.size())
        return 0;
    const char letter = plainLetters[code - firstAccented];
    return letter == noLetter ? '\0' : letter;
}

/// Whether `letter` is only the other way to write the umlaut of the one before.
bool isUmlautsE(char letter, std::string_view before) {
    return letter == 'e' && !before.empty() &&
           (before.back() == 'a' || before.back() == 'o' || before.back() == 'u');
}

} // namespace

std::string searchText(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = nextCharacter(text, at);
        const std::string_view character = text.substr(at, end - at);
        at = end;
        char letter = character.size() == 1 ? character.front() : plainLetter(character);
        if (letter >= 'A' && letter <= 'Z')
            letter = static_cast<char>(letter - 'A' + 'a');
        if (letter == '\0')
            result += character;
        else if (!isUmlautsE(letter, result))
            result += letter;
    }
    return result;
}

} // namespace tarnel
