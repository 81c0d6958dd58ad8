#pragma once

#include "tools/printed/printed_question.h"

#include <QByteArray>

namespace tarnel {

/// What stands on all sheets of a course.
struct SheetStyle {
    QString title; ///< at the head of each page
    Language language = Language::english;
    QString pictures; ///< the folder with those of the dials
};

/// A PDF on A4: a page a question, and at the end the solutions, four on a page. All but the faces
/// of the dials, which stand in it once, is lines, areas and text.
[[nodiscard]] QByteArray sheets(const SheetStyle& style,
                                const std::vector<PrintedQuestion>& questions);

} // namespace tarnel
