#pragma once

#include <string>

namespace tarnel {

/// The languages that a course is written in.
enum class Language { german, english };
constexpr Language bothLanguages[] = {Language::german, Language::english};

/// What stands before the names of a language's files.
[[nodiscard]] inline std::string filePrefix(Language language) {
    return language == Language::german ? "" : "e-";
}

/// A text in both languages, UTF-8.
struct LocalText {
    std::string german;
    std::string english;

    [[nodiscard]] const std::string& in(Language language) const {
        return language == Language::german ? german : english;
    }
    [[nodiscard]] bool empty() const { return german.empty() && english.empty(); }
};

} // namespace tarnel
