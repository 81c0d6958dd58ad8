#include "shell/course_desk.h"

#include "platform/path_text.h"
#include "shell/course_fault.h"

#include <algorithm>
#include <filesystem>

namespace tarnel {

std::vector<std::string> CourseDesk::names() const {
    std::vector<std::string> found;
    std::error_code failure;
    for (std::filesystem::directory_iterator entry(pathOf(folder), failure), end;
         !failure && entry != end; entry.increment(failure)) {
        std::error_code ignored;
        const std::string name = textOf(entry->path().filename());
        if (!name.starts_with('.') && entry->is_directory(ignored))
            found.push_back(name);
    }
    return found;
}

std::vector<const ExerciseItem*> CourseDesk::exercisesOf(const std::string& name) const {
    const Course course = ownCourse(folder, name);
    std::vector<const ExerciseItem*> found;
    for (const ExerciseItem& item : exerciseItems()) {
        const auto& kind = *exerciseOf(static_cast<int>(item.type));
        const bool listed = std::ranges::any_of(
            found, [&](const ExerciseItem* other) { return other->type == item.type; });
        if (!listed && !presentStudyFiles(course, kind, boxes.texts.isGerman()).empty())
            found.push_back(&item);
    }
    return found;
}

void CourseDesk::open(const std::string& name, const ExerciseItem& item, QAform::Order order) {
    if (!menu.enabled())
        return;
    const Course course = ownCourse(folder, name);
    const auto fault = courseFault(course, *exerciseOf(static_cast<int>(item.type)), boxes.texts);
    if (!fault)
        return exercise.start(item, course, order);
    boxes.show(Text::errorTitle, fault->path + "\n" + fault->why + "\n" +
                                     std::string(boxes.texts[Text::nothingChanged]));
}

} // namespace tarnel
