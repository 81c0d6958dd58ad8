#include "authoring/course_source.h"

#include "core/run_time_error.h"
#include "flights/plan_bounds.h"
#include "flights/plan_error.h"
#include "flights/plan_reader.h"
#include "strings/cause_text.h"

namespace tarnel {

namespace {

constexpr Range<double> straightOn{30, 600}; ///< seconds

AuthoredChart readChartOf(PlanTable& root, const std::string& file, const ChartShelf& charts) {
    root.need("chart");
    const auto name = root.text(
        "chart", [&](const std::string& text) { return !text.empty() && charts.find(text, file); },
        "the name of a chart, a .map file beside this one or among the trainer's");
    try {
        return readAuthoredChart(*charts.find(*name, file));
    } catch (const RunTimeError& error) {
        throw PlanError(file, root.lineOf("chart"),
                        "a chart that can be read: " +
                            std::string(causeText(englishTable(), error.cause())));
    } catch (const std::runtime_error& error) {
        throw PlanError(file, root.lineOf("chart"), error.what());
    }
}

void readWind(PlanTable& table, Situation& situation) {
    const auto wind = table.text(
        "wind", [](const std::string& text) { return windFrom(text).has_value(); },
        R"(direction and speed, such as "270/15")");
    if (wind)
        situation.wind = *windFrom(*wind);
}

void readAnswers(PlanTable table, Situation& situation) {
    for (const char* column : {"ans1", "ans2", "ans3", "ans4", "ans5", "ans6", "ans7"}) {
        const auto answer = table.text(
            column, [](const std::string& text) { return !text.empty(); }, "a text");
        if (answer)
            situation.answers[column] = *answer;
    }
    table.refuseOtherKeys();
}

Situation readSituation(PlanTable table, const CourseSource& course) {
    Situation situation;
    situation.line = table.line();
    course.questions->read(table, course.chart, situation);
    situation.tas = table.whole("tas", plan_limits::airSpeed).value_or(situation.tas);
    situation.flown = table.number("flown", straightOn).value_or(situation.flown);
    readWind(table, situation);
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
        course.situations.push_back(readSituation(table, course));
    root.refuseOtherKeys();
    return course;
}

} // namespace tarnel
