#pragma once

#include "strings/string_table.h"

#include <QString>

#include <functional>

class QObject;

namespace tarnel {

/// Gives the application its style, colours and icon, and a typeface where no desktop has one.
void dressApplication(const StringTable& texts, const QString& applicationFolder);

/// How large the desktop wants its texts: 1 is the size that the window is laid out for, which is
/// the least, and 1.5 the most.
[[nodiscard]] double desktopTextScale();

/// Runs `dress` now and whenever the desktop has changed its colours or its typeface, as long as
/// `owner` lives.
void followDesktop(QObject& owner, std::function<void()> dress);

/// Gives the buttons of Qt's own boxes and dialogs the language of `texts`, where Qt's translations
/// are installed.
void translateDialogs(const StringTable& texts);

} // namespace tarnel
