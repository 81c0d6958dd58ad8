#include "exercises/adf_exercise.h"

namespace tarnel {

namespace {

using enum StudyColumn;

/// The trends. The English words always stand in the column of the QDR trend, which so judges both
/// rows of an English record.
std::vector<WordOffer> trends(StudyColumn answer) {
    return {{Text::trendLarger, {{ans2, "increase"}, {answer, "größer"}}},
            {Text::trendSmaller, {{ans2, "decrease"}, {answer, "kleiner"}}},
            {Text::trendSame, {{ans2, "remain constant"}, {answer, "gleich"}}}};
}

} // namespace

std::vector<ExerciseRow> adfRows() {
    return {{Text::askQdr, ans1, {}, {qa, qb, qc, qd}},
            {Text::askQdrTrend, ans2, trends(ans2), {}},
            {Text::askQdm, ans3, {}, {qe, qf, qg, qh}},
            {Text::askQdmTrend, ans4, trends(ans4), {}},
            {Text::askRelativeBearing, ans5, {}, {qi, qj, qk, ql}}};
}

} // namespace tarnel
