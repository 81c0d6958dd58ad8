#pragma once

#include "debrief/judgement.h"
#include "debrief/task.h"

namespace tarnel {

/// How a line over a station is joined and kept. `flight` has at least one sample.
void judgeLine(std::span<const Sample> flight, const LineTask& task, Judgement& judgement);

} // namespace tarnel
