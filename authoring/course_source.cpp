#include "authoring/course_source.h"

#include "authoring/table_values.h"
#include "exercises/study_file.h"
#include "flights/plan_bounds.h"

namespace tarnel {

namespace {

constexpr Range<double> straightOn{30, 600}; ///< seconds

void readAnswers(PlanTable table, Situation& situation) {
    for (const char* column : {"ans1", "ans2", "ans3", "ans4", "ans5", "ans6", "ans7"}) {
        const auto answer = table.text(
            column, [](const std::string& text) { return !text.empty(); }, "a text");
        if (answer)
            situation.answers[column] = *answer;
    }
    table.refuseOtherKeys();
}

Situation readSituation(PlanTable table, const CourseSource& course, const ChartShelf& charts) {
    Situation situation;
    situation.line = table.line();
    if (table.lineOf("chart") > 0)
        situation.chart = std::make_shared<AuthoredChart>(readChartOf(table, course.file, charts));
    course.questions->read(table, course.chartOf(situation), situation);
    situation.tas = table.whole("tas", plan_limits::airSpeed).value_or(situation.tas);
    situation.flown = table.number("flown", straightOn).value_or(situation.flown);
    situation.wind = readWind(table).value_or(situation.wind);
    readAnswers(table.part("answers"), situation);
    table.refuseOtherKeys();
    return situation;
}

} // namespace

CourseSource readCourse(std::string_view text, const std::string& file, const ChartShelf& charts) {
    checkPlanBounds(text, file);
    PlanTable root = PlanTable::parse(text, file);
    CourseSource course;
    course.file = file;
    std::string words;
    for (const CourseKind& kind : courseKinds())
        words += (words.empty() ? "" : ", ") + std::string(kind.word);
    root.need("exercise");
    const auto word = root.text(
        "exercise", [](const std::string& name) { return courseKind(name) != nullptr; },
        "one of " + words);
    course.kind = courseKind(*word);
    course.questions = course.kind->make();
    course.chart = readChartOf(root, file, charts);
    for (const PlanTable& table : root.parts("situation"))
        course.situations.push_back(readSituation(table, course, charts));
    if (course.situations.size() > maxStudyRecords)
        root.refuse("at most " + std::to_string(maxStudyRecords) + " situations");
    root.refuseOtherKeys();
    return course;
}

} // namespace tarnel
