#pragma once

#include "strings/string_table.h"

#include <QString>

namespace tarnel {

/// Paints the parts of the window that the help is about, in the language of `texts`, as PNG files
/// into a folder that is there. Needs a QApplication. Throws OutputError.
void paintPanels(const StringTable& texts, const QString& folder);

/// The same with the whole window: a flight, an exercise, a debrief.
void paintWindows(const StringTable& texts, const QString& folder);

} // namespace tarnel
