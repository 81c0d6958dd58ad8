#include "exercises/study_remark.h"

#include "exercises/val_str.h"

namespace tarnel {

std::string studyRemark(const StudyFile& study, const std::string& name, const StringTable& texts) {
    const auto about = [&](Text what) { return std::string(texts[what]) + name; };
    const std::string place = " (" + std::string(texts[Text::studyQuestion]) + Str(study.record) +
                              ", " + std::string(texts[Text::studyLine]) + Str(study.line) + ")";
    switch (study.end) {
    case StudyEnd::unreadable:
        return about(Text::studyUnreadable);
    case StudyEnd::insideRecord:
        return about(Text::studyEndsInQuestion) + place;
    case StudyEnd::lineTooLong:
        return about(Text::studyLineTooLong) + place;
    case StudyEnd::tooManyRecords:
        return about(Text::studyTooLong) + place;
    case StudyEnd::complete:
        break;
    }
    return study.records.empty() ? about(Text::studyWithoutQuestions) : std::string();
}

} // namespace tarnel
