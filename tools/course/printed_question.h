#pragma once

#include "authoring/course_source.h"
#include "authoring/local_text.h"

#include <QImage>
#include <QString>
#include <QStringList>

#include <vector>

namespace tarnel {

/// A question as it goes onto paper.
struct PrintedQuestion {
    struct Row {
        QString prompt;
        QStringList offers; ///< none where a number is to be written
        QString solution;
    };

    QString task;
    QString known; ///< what is known besides the task
    std::vector<Row> rows;
    QImage left; ///< the dials; null where the chart alone is asked
    QImage right;
    QImage chart;
    QImage flown; ///< the chart with the solution
};

/// Flies every situation of a course and takes its question down. Throws PlanError for a solution
/// that does not come to its end.
[[nodiscard]] std::vector<PrintedQuestion> printedQuestions(const CourseSource& source,
                                                            Language language,
                                                            const std::string& applicationFolder);

} // namespace tarnel
