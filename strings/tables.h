#pragma once

#include "strings/string_table.h"

namespace tarnel {

/// The texts of the German and of the English program.
[[nodiscard]] const StringTable& germanTable();
[[nodiscard]] const StringTable& englishTable();

} // namespace tarnel
