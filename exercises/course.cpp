#include "exercises/course.h"

#include "exercises/text_hash.h"

#include <array>
#include <charconv>

namespace tarnel {

namespace {

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
            .statisticPrefix = hexadecimal(textHash(name)) + "/",
            .name = name,
            .anyLanguage = true};
}

std::string withSeparator(std::string folder) {
    if (!folder.ends_with('\\') && !folder.ends_with('/'))
        folder += '\\';
    return folder;
}

} // namespace tarnel
