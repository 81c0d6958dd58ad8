#pragma once

#include "authoring/course_source.h"
#include "authoring/local_text.h"
#include "instruments/instrument_picture.h"

#include <QPicture>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace tarnel {

/// A question as it goes onto paper.
struct PrintedQuestion {
    struct Row {
        QString prompt;
        QStringList offers; ///< none where the answer is to be written
        QStringList units;  ///< of the numbers to be written, beside an offer or alone
        QString solution;
    };

    QString task;
    QString known; ///< what is known besides the task
    std::vector<Row> rows;
    std::optional<InstrumentPicture> left; ///< the dials; none where the chart alone is asked
    std::optional<InstrumentPicture> right;
    QPicture chart; ///< `chartUnits` wide and high
    QPicture flown; ///< the chart with the solution, `solutionUnits` wide and high

    // For these the lettering of charts is made.
    static constexpr double chartUnits = 460;
    static constexpr double solutionUnits = 300;
};

/// Flies every situation of a course and takes its question down. Throws PlanError for a solution
/// that does not come to its end.
[[nodiscard]] std::vector<PrintedQuestion> printedQuestions(const CourseSource& source,
                                                            Language language,
                                                            const std::string& applicationFolder);

} // namespace tarnel
