#pragma once

#include "debrief/debrief.h"

namespace tarnel {

/// How far a flight stays off another one, sample by sample.
[[nodiscard]] Debrief judgeReference(std::span<const Sample> flight, const ReferenceTask& task,
                                     Strictness strictness);

} // namespace tarnel
