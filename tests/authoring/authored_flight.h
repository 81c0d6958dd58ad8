#pragma once

#include "authoring/built_question.h"
#include "authoring/course_check.h"
#include "authoring/pilot.h"

#include <algorithm>
#include <functional>
#include <string>

namespace tarnel {

/// A course of one situation, on line 4.
inline CourseSource courseOf(const std::string& exercise, std::string situation) {
    std::replace(situation.begin(), situation.end(), '\n', ' ');
    const ChartShelf charts({TARNEL_DATA_FOLDER});
    return readCourse("exercise = \"" + exercise + "\"\nchart = \"default\"\nsituation = [\n{ " +
                          situation + " },\n]\n",
                      "course.toml", charts);
}

/// A pilot in the air over the default chart.
struct PilotInFlight {
    explicit PilotInFlight(const CourseSource& course)
        : flight(course.questions->start(course.situations.front(), course.chart), englishTable(),
                 TARNEL_DATA_FOLDER),
          pilot(flight, course.chart) {}

    ScriptedFlight flight;
    Pilot pilot;
};

/// What is found in a question whose solution `solve` flies, once `spoil` is through with it.
inline SourceFindings findingsOf(const CourseSource& course,
                                 const std::function<void(Pilot&, const Situation&)>& solve,
                                 const std::function<void(BuiltQuestion&)>& spoil) {
    const Situation& situation = course.situations.front();
    PilotInFlight flown(course);
    solve(flown.pilot, situation);
    const FlownSituation solution{situation, course.chart, flown.pilot.rows(), flown.pilot.said(),
                                  flown.flight.form().UserControl11.sessionBytes()};
    BuiltQuestion question = questionOf(course, solution);
    spoil(question);
    SourceFindings findings;
    CourseCheck(course, findings).add(question);
    return findings;
}

} // namespace tarnel
