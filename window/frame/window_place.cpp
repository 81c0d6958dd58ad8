#include "window/frame/window_place.h"

#include "exercises/settings_store.h"

#include <QWidget>

namespace tarnel {

namespace {

constexpr const char* application = "tarnel";
constexpr const char* section = "window";

} // namespace

void keepPlace(const QWidget& window, SettingsStore& settings, const char* key) {
    settings.setValue(application, section, key, window.saveGeometry().toBase64().toStdString());
    settings.flush();
}

bool takePlace(QWidget& window, const SettingsStore& settings, const char* key) {
    const std::string kept = settings.value(application, section, key, {});
    return !kept.empty() &&
           window.restoreGeometry(QByteArray::fromBase64(QByteArray::fromStdString(kept)));
}

} // namespace tarnel
