#pragma once

#include "strings/string_table.h"

#include <QAction>
#include <QMainWindow>

#include <functional>

namespace tarnel {

/// The keys of the window that no item of a menu has, as actions of it: F10 opens the menu bar, and
/// Escape steps out of whatever is up, where nothing else takes it.
void addWindowKeys(QMainWindow& window, const StringTable& texts,
                   const std::function<void()>& stepOut);

/// F11: the window takes the whole screen, and goes back; for a menu.
[[nodiscard]] QAction* fullScreenAction(QMainWindow& window, const StringTable& texts);

} // namespace tarnel
