#include "shell/course_fault.h"

#include "core/number_text.h"
#include "core/run_time_error.h"
#include "exercises/study_remark.h"
#include "persistence/file_bytes.h"
#include "persistence/session_file.h"
#include "platform/path_text.h"
#include "shell/problem_text.h"
#include "shell/text_format.h"
#include "strings/cause_text.h"

#include <algorithm>
#include <filesystem>
#include <set>

namespace tarnel {

namespace {

/// As many bytes may the flights of an exercise have together.
constexpr std::size_t largestFlights = std::size_t{48} << 20;

std::string tooFewQuestions(const StudyFile& study, const std::string& name,
                            const ExerciseKind& exercise, const StringTable& texts) {
    if (static_cast<int>(study.records.size()) >= exercise.leastQuestions)
        return {};
    return filledIn(texts[Text::studyTooShort],
                    {name, numberText(std::int64_t{exercise.leastQuestions})});
}

std::set<std::string> sessionsOf(const StudyFile& study) {
    std::set<std::string> names;
    for (const StudyRecord& record : study.records)
        names.insert(record[StudyColumn::sessionName]);
    return names;
}

} // namespace

std::vector<std::string> presentStudyFiles(const Course& course, const ExerciseKind& exercise,
                                           bool german) {
    std::vector<std::string> names = course.studyFiles(exercise, german);
    std::erase_if(names, [&](const std::string& name) {
        std::error_code failure;
        return !exists(std::filesystem::symlink_status(pathOf(course.studyFolder + name), failure));
    });
    return names;
}

std::optional<CourseFault> courseFault(const Course& course, const ExerciseKind& exercise,
                                       const StringTable& texts) {
    const auto names = presentStudyFiles(course, exercise, texts.isGerman());
    const std::string name = names.empty() ? std::string(exercise.studyFile) : names.front();
    std::string path = course.studyFolder + name;
    try {
        const StudyFile study =
            readStudyFile(readFileBytes(path, largestStudyFile), static_cast<int>(exercise.type));
        std::string wrong = studyRemark(study, name, texts);
        if (wrong.empty())
            wrong = tooFewQuestions(study, name, exercise, texts);
        if (!wrong.empty())
            return CourseFault{path, wrong};
        std::size_t room = largestFlights;
        for (const std::string& session : sessionsOf(study)) {
            path = course.sessionFolder + session;
            std::string bytes = readFileBytes(path, std::min(room, largestSession));
            room -= bytes.size();
            if (const auto problem = readSession(std::move(bytes)).problem)
                return CourseFault{path, problemText(texts, *problem)};
        }
    } catch (const RunTimeError& error) {
        return CourseFault{path, std::string(causeText(texts, error.cause()))};
    }
    return {};
}

} // namespace tarnel
