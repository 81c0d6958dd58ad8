#pragma once

#include "exercises/study_record.h"

#include <cstdint>
#include <vector>

namespace tarnel {

/// What each question of a study file is known by, in the order of the file. It holds as long as
/// the question's flight and numbers stay, whatever becomes of other questions and of its words:
/// the German and the English question have the same. Questions alike in all this are told apart
/// by their order.
[[nodiscard]] std::vector<std::int64_t> questionKeys(const std::vector<StudyRecord>& records);

} // namespace tarnel
