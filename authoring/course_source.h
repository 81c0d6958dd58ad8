#pragma once

#include "authoring/authored_chart.h"
#include "authoring/question_kind.h"
#include "authoring/situation.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tarnel {

/// The questions of one exercise as a teacher writes them.
struct CourseSource {
    std::string file;
    const CourseKind* kind = nullptr;
    std::unique_ptr<QuestionKind> questions;
    AuthoredChart chart; ///< of situations that name none
    std::vector<Situation> situations;

    [[nodiscard]] const AuthoredChart& chartOf(const Situation& situation) const {
        return situation.chart ? *situation.chart : chart;
    }
};

/// Reads the TOML text of a course. `file` names it in messages, and charts are looked for beside
/// it first. Throws PlanError for the first mistake, unknown keys among them.
[[nodiscard]] CourseSource readCourse(std::string_view text, const std::string& file,
                                      const ChartShelf& charts);

} // namespace tarnel
