#pragma once

#include "strings/string_table.h"

namespace tarnel {

/// The texts in the language of the locale, which is what LC_ALL, LC_MESSAGES or LANG says, the
/// first of them that is set and not empty: German for "de" with whatever country and encoding,
/// else English.
[[nodiscard]] const StringTable& localeTable();

} // namespace tarnel
