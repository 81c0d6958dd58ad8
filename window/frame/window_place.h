#pragma once

class QWidget;

namespace tarnel {

class SettingsStore;

/// Notes in the settings where a window stands, how large it is, and whether it is maximized.
void keepPlace(const QWidget& window, SettingsStore& settings);

/// Puts a window where `keepPlace` found it, on a screen that is there. False if nothing was noted.
bool takePlace(QWidget& window, const SettingsStore& settings);

} // namespace tarnel
