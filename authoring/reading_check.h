#pragma once

#include "authoring/built_question.h"
#include "authoring/findings.h"

namespace tarnel {

/// Proves what the panel shows where a question stands: its station can be received and read, the
/// instrument that is asked about shows the answer, and nothing else tells it.
void checkReadings(const BuiltQuestion& question, SourceFindings& findings);

} // namespace tarnel
