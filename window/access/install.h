#pragma once

#include "strings/string_table.h"

namespace tarnel {

/// Has everything in the window made from now on say what it is, and be pressed and turned, through
/// Qt's accessibility interface as by hand. `texts` must live as long as the program.
void installAccessibility(const StringTable& texts);

} // namespace tarnel
