#pragma once

#include "debrief/judgement.h"
#include "debrief/task.h"

namespace tarnel {

/// How a holding is entered and flown. `flight` has at least one sample.
void judgeHold(std::span<const Sample> flight, const HoldTask& task, Judgement& judgement);

} // namespace tarnel
