#pragma once

#include "strings/string_table.h"

#include <QString>

namespace tarnel {

/// Gives the application its font, style and icon.
void dressApplication(const StringTable& texts, const QString& applicationFolder);

/// Gives the buttons of Qt's own boxes and dialogs the language of `texts`, where Qt's translations
/// are installed.
void translateDialogs(const StringTable& texts);

} // namespace tarnel
