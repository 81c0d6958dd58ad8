#pragma once

#include "debrief/judgement.h"
#include "debrief/task.h"

namespace tarnel {

/// How an arc is joined, kept and left. `flight` has at least one sample.
void judgeArc(std::span<const Sample> flight, const ArcTask& task, Judgement& judgement);

} // namespace tarnel
