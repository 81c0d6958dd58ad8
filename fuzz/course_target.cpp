#include "authoring/course_source.h"
#include "flights/plan_error.h"
#include "source_checks.h"

using namespace tarnel;

/// Reads the source of a course, then flies and checks its first situations.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::size_t flown = 2; // a flight takes its time
    try {
        CourseSource course =
            readCourse(asText(data, size), "course.toml", ChartShelf({TARNEL_DATA_FOLDER}));
        if (course.situations.size() > flown)
            course.situations.resize(flown);
        requireThatItCanBeTaught(buildCourse(course, TARNEL_DATA_FOLDER));
    } catch (const PlanError& error) {
        require(error.line() >= 0);
    }
    return 0;
}
