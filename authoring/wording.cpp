#include "authoring/wording.h"

#include "core/station_geometry.h"

#include <cmath>
#include <string_view>

namespace tarnel {

namespace {

struct PhraseRow {
    std::string_view german;
    std::string_view english;
};

constexpr PhraseRow phrases[] = {
#define PHRASE(name, german, english) {german, english},
#include "authoring/wording.def"
};

std::string filled(std::string_view text, std::initializer_list<LocalText> values,
                   Language language) {
    std::string result(text);
    int place = 0;
    for (const LocalText& value : values) {
        const std::string mark = "%" + std::to_string(++place);
        for (std::size_t at = 0; (at = result.find(mark, at)) != std::string::npos;
             at += value.in(language).size())
            result.replace(at, mark.size(), value.in(language));
    }
    return result;
}

/// One of something takes no plural: "1 degrees" becomes "1 degree".
std::string withSingulars(std::string english) {
    constexpr std::string_view plural = "1 degrees";
    for (std::size_t at = 0; (at = english.find(plural, at)) != std::string::npos; ++at)
        if (at == 0 || english[at - 1] == ' ')
            english.erase(at + plural.size() - 1, 1);
    return english;
}

} // namespace

LocalText worded(Phrase phrase, std::initializer_list<LocalText> values) {
    const PhraseRow& row = phrases[static_cast<std::size_t>(phrase)];
    return {filled(row.german, values, Language::german),
            withSingulars(filled(row.english, values, Language::english))};
}

LocalText same(const std::string& text) {
    return {text, text};
}

LocalText courseText(double degrees) {
    return same(threeDigits(degrees));
}

LocalText number(double value) {
    return same(std::to_string(std::lround(value)));
}

LocalText tenths(double value) {
    const long all = std::lround(value * 10);
    const std::string whole = std::to_string(all / 10);
    const std::string tenth = std::to_string(std::abs(all % 10));
    return {whole + "," + tenth, whole + "." + tenth};
}

LocalText minutesAndSeconds(double seconds) {
    const long all = std::lround(seconds);
    const std::string rest = std::to_string(all % 60);
    return same(std::to_string(all / 60) + ":" + (rest.size() < 2 ? "0" : "") + rest);
}

} // namespace tarnel
