#include "shell/reference_file.h"

#include "core/run_time_error.h"
#include "exercises/course.h"
#include "persistence/file_bytes.h"
#include "persistence/file_path.h"
#include "persistence/session_file.h"
#include "platform/path_text.h"
#include "shell/shipped_session.h"

namespace tarnel {

namespace {

constexpr std::string_view languageMark = "e-";

/// Nothing where a name leads out of its folder.
std::optional<std::string> pathOf(const std::string& name, const ReferencePlaces& places) {
    const std::size_t slash = name.find('/');
    const std::string course = slash == std::string::npos ? "" : name.substr(0, slash);
    const std::string file = slash == std::string::npos ? name : name.substr(slash + 1);
    if (file.empty() || file.find_first_of("/\\") != std::string::npos || course.starts_with('.'))
        return {};
    if (slash == std::string::npos)
        return shippedSession(places.application, file, places.texts, false);
    return ownCourse(places.courses, course).sessionFolder + file;
}

} // namespace

std::string referenceName(const std::string& path, const ReferencePlaces& places) {
    const std::filesystem::path file = portablePath(path);
    const std::filesystem::path course = file.parent_path().parent_path();
    std::string name = textOf(file.filename());
    if (!places.courses.empty() && course.parent_path() == pathOf(places.courses))
        return textOf(course.filename()) + '/' + name;
    return name.starts_with(languageMark) ? name.substr(languageMark.size()) : name;
}

std::optional<std::vector<Sample>> referenceFlight(const std::string& name,
                                                   const ReferencePlaces& places) {
    const std::optional<std::string> path = pathOf(name, places);
    if (!path)
        return {};
    try {
        return readSession(readFileBytes(textOf(portablePath(*path)), largestSession)).samples;
    } catch (const RunTimeError&) {
        return {};
    }
}

} // namespace tarnel
