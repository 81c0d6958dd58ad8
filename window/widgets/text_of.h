#pragma once

#include "strings/string_table.h"

#include <QString>

namespace tarnel {

/// `text` of the table as Qt wants it.
[[nodiscard]] QString textOf(const StringTable& texts, Text id);

} // namespace tarnel
