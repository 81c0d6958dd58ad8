#include "debrief/debrief.h"
#include "debrief/reference_judge.h"

namespace tarnel {

Debrief judge(std::span<const Sample> flight, const Task& task, Strictness strictness) {
    if (const auto* reference = std::get_if<ReferenceTask>(&task))
        return judgeReference(flight, *reference, strictness);
    return {};
}

} // namespace tarnel
