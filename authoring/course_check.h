#pragma once

#include "authoring/built_question.h"
#include "authoring/findings.h"

namespace tarnel {

/// `CourseCheck`: proves the questions of a course, one after the other, and in the end their
/// number.
class CourseCheck {
  public:
    CourseCheck(const CourseSource& source, SourceFindings& findings)
        : course(source), found(findings) {}

    /// Proves what holds for the questions of every exercise, and what holds for this one: answers,
    /// readings, the solution, comments.
    void add(const BuiltQuestion& question);
    void finish();

  private:
    struct Asked {
        int line = 0;
        StudyRecord record;
        Sample picture;
    };

    const CourseSource& course;
    SourceFindings& found;
    std::vector<Asked> asked;
};

} // namespace tarnel
