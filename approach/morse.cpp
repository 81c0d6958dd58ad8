#include "approach/morse.h"

namespace tarnel {

namespace {

constexpr const char* letters[] = {".-",   "-...", "-.-.", "-..",  ".",    "..-.", "--.",
                                   "....", "..",   ".---", "-.-",  ".-..", "--",   "-.",
                                   "---",  ".--.", "--.-", ".-.",  "...",  "-",    "..-",
                                   "...-", ".--",  "-..-", "-.--", "--.."};
constexpr const char* digits[] = {"-----", ".----", "..---", "...--", "....-",
                                  ".....", "-....", "--...", "---..", "----."};

} // namespace

const char* morseCode(char character) {
    if (character >= 'A' && character <= 'Z')
        return letters[character - 'A'];
    if (character >= '0' && character <= '9')
        return digits[character - '0'];
    return "";
}

std::string morseCode(const std::string& identifier) {
    std::string codes;
    for (const char character : identifier)
        codes += (codes.empty() ? "" : " ") + std::string(morseCode(character));
    return codes;
}

} // namespace tarnel
