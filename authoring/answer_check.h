#pragma once

#include "authoring/built_question.h"
#include "authoring/findings.h"

namespace tarnel {

/// Proves that a question can be answered in one way: it is told in both languages, each of its
/// rows offers the right answer once and no offer twice, and the answer is what the teacher
/// expects.
void checkAnswers(const BuiltQuestion& question, SourceFindings& findings);

} // namespace tarnel
