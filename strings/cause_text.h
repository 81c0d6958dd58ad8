#pragma once

#include "core/run_time_error.h"
#include "strings/string_table.h"

#include <string_view>

namespace tarnel {

/// The sentence that tells a user what went wrong.
[[nodiscard]] std::string_view causeText(const StringTable& texts, Cause cause);

} // namespace tarnel
