#include "authoring/course_check.h"

#include "authoring/answer_check.h"
#include "authoring/comment_check.h"
#include "authoring/reading_check.h"
#include "authoring/solution_check.h"

#include <algorithm>

namespace tarnel {

void CourseCheck::add(const BuiltQuestion& question) {
    const FlownSituation& flown = question.flown;
    const Situation& situation = flown.situation;
    course.questions->check(flown, found);
    checkAnswers(question, found);
    checkReadings(question, found);
    checkSolution(question, found);
    checkComments({flown.chart, flown.rows, question.samples, flown.said, situation.station},
                  {situation.line}, found);

    const Asked now{situation.line, question.in(Language::english), question.samples.front()};
    const auto same = std::find_if(asked.begin(), asked.end(), [&](const Asked& earlier) {
        return earlier.record == now.record && earlier.picture == now.picture;
    });
    if (same != asked.end())
        found.push_back(question.finding("asks the same as the question of line " +
                                         std::to_string(same->line)));
    asked.push_back(now);
}

void CourseCheck::finish() {
    // An exercise draws from eight; with fewer its offers run out.
    constexpr std::size_t fewest = 8;
    constexpr std::size_t wanted = 12;
    const std::size_t count = course.situations.size();
    if (count < wanted)
        found.push_back({0,
                         std::to_string(count) + " situations; " + std::to_string(wanted) +
                             " are wanted, " + std::to_string(fewest) + " needed",
                         count >= fewest});
}

} // namespace tarnel
