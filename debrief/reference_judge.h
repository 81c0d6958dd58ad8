#pragma once

#include "debrief/judgement.h"
#include "debrief/task.h"

namespace tarnel {

/// How far a flight stays off another one, sample by sample. `flight` has at least one sample.
void judgeReference(std::span<const Sample> flight, const ReferenceTask& task,
                    Judgement& judgement);

} // namespace tarnel
