#include "exercises/course.h"

#include <array>
#include <charconv>
#include <cstdint>

namespace tarnel {

namespace {

/// A text as 64 bits that are the same in every build: FNV-1a (Fowler, Noll, Vo).
std::uint64_t hashOf(std::string_view text) {
    constexpr std::uint64_t start = 0xcbf29ce484222325;
    constexpr std::uint64_t prime = 0x100000001b3;
    std::uint64_t hash = start;
    for (const char c : text)
        hash = (hash ^ static_cast<unsigned char>(c)) * prime;
    return hash;
}

std::string hexadecimal(std::uint64_t number) {
    constexpr int base = 16;
    std::array<char, base> digits{};
    const auto end = std::to_chars(digits.begin(), digits.end(), number, base).ptr;
    return {digits.data(), end};
}

} // namespace

std::vector<std::string> Course::studyFiles(const ExerciseKind& exercise, bool german) const {
    std::vector<std::string> names = studyFileNames(exercise, german);
    if (anyLanguage)
        names.push_back(studyFileNames(exercise, !german).front());
    return names;
}

std::string Course::statisticStem(const ExerciseKind& exercise) const {
    return statisticPrefix + std::string(exercise.statisticStem);
}

Course shippedCourse(const std::string& applicationFolder) {
    const std::string folder = withSeparator(applicationFolder) + "default\\";
    return {.studyFolder = folder + "study\\",
            .sessionFolder = folder + "sessions\\",
            .statisticPrefix = {}};
}

Course ownCourse(const std::string& folder, const std::string& name) {
    const std::string place = folder + "/" + name;
    return {.studyFolder = place + "/study/",
            .sessionFolder = place + "/sessions/",
            .statisticPrefix = hexadecimal(hashOf(name)) + "/",
            .anyLanguage = true};
}

std::string withSeparator(std::string folder) {
    if (!folder.ends_with('\\') && !folder.ends_with('/'))
        folder += '\\';
    return folder;
}

} // namespace tarnel
