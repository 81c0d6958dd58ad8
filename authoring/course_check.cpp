#include "authoring/course_check.h"

namespace tarnel {

void checkSituation(const CourseSource& source, const FlownSituation& flown, Findings& findings) {
    source.questions->check(flown, findings);
}

void checkCourse(const CourseSource& source, Findings& findings) {
    // An exercise draws from eight; with fewer its offers run out.
    constexpr std::size_t fewest = 8;
    constexpr std::size_t wanted = 12;
    const std::size_t count = source.situations.size();
    if (count < wanted)
        findings.push_back({0,
                            std::to_string(count) + " situations; " + std::to_string(wanted) +
                                " are wanted, " + std::to_string(fewest) + " needed",
                            count >= fewest});
}

} // namespace tarnel
