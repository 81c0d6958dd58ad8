#pragma once

#include "debrief/task.h"
#include "strings/string_table.h"

#include <string>

namespace tarnel {

/// What a task is, such as "Holding".
[[nodiscard]] std::string taskName(const Task& task, const StringTable& texts);
/// What of it is to be kept to, such as "MUN, right, Inbound course 240°", at a station that is
/// called `station`. Empty for a reference.
[[nodiscard]] std::string taskDetail(const Task& task, const std::string& station,
                                     const StringTable& texts);

} // namespace tarnel
