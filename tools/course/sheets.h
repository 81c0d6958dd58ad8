#pragma once

#include "tools/course/printed_question.h"

#include <QByteArray>

namespace tarnel {

/// A PDF on A4: a page a question, and at the end the solutions, four on a page. `title` stands at
/// the head of each page.
[[nodiscard]] QByteArray sheets(const QString& title, const std::vector<PrintedQuestion>& questions,
                                Language language);

} // namespace tarnel
