#pragma once

class QWidget;

namespace tarnel {

class SettingsStore;

/// Notes in the settings, below `key`, where a window stands, how large it is, and whether it is
/// maximized.
void keepPlace(const QWidget& window, SettingsStore& settings, const char* key);

/// Puts a window where `keepPlace` found it, on a screen that is there. False if nothing was noted.
bool takePlace(QWidget& window, const SettingsStore& settings, const char* key);

} // namespace tarnel
