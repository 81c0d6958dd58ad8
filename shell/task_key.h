#pragma once

#include "debrief/task.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarnel {

/// A task as a log keeps it, the same in each language: "track vor1 85 to join cut 30",
/// "hold vor1 240 right 1", "arc vor1 10 clockwise 275 to", "wind" for "hold" in wind, and
/// "reference NAME". Courses are degrees true, times minutes, distances NM. NAME, which must have
/// no line break, stands for the samples of a reference.
[[nodiscard]] std::string taskKey(const Task& task, const std::string& reference);

/// The flight behind the name of a reference; nothing or no sample if it is gone.
using ReferenceOf = std::function<std::optional<std::vector<Sample>>(const std::string& name)>;

/// The task of such a key. Nothing if it is damaged or of a kind that this program does not know,
/// if a number can't be flown, or if its reference is gone.
[[nodiscard]] std::optional<Task> taskOfKey(std::string_view key, const ReferenceOf& referenceOf);

} // namespace tarnel
