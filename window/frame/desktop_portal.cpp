#include "window/frame/desktop_portal.h"

#include "look/look.h"

#include <QApplication>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QPalette>

namespace tarnel {

namespace {

constexpr const char* portalService = "org.freedesktop.portal.Desktop";
constexpr const char* portalPath = "/org/freedesktop/portal/desktop";
constexpr const char* portalSettings = "org.freedesktop.portal.Settings";
constexpr const char* appearance = "org.freedesktop.appearance";
constexpr const char* colourScheme = "color-scheme";
constexpr uint preferDark = 1;

/// Portals wrap a value once or twice.
QVariant unwrapped(QVariant value) {
    while (value.canConvert<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value;
}

} // namespace

DesktopPortal::DesktopPortal(QDBusConnection itsBus) : bus(std::move(itsBus)) {
    if (!bus.isConnected())
        return;
    bus.connect(portalService, portalPath, portalSettings, QStringLiteral("SettingChanged"), this,
                SLOT(hear(QDBusMessage)));
    ask();
}

void DesktopPortal::ask() {
    QDBusMessage question = QDBusMessage::createMethodCall(portalService, portalPath,
                                                           portalSettings, QStringLiteral("Read"));
    question << QString::fromLatin1(appearance) << QString::fromLatin1(colourScheme);
    auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(question), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        const QDBusPendingReply<QDBusVariant> answer = *watcher;
        watcher->deleteLater();
        if (!answer.isError())
            take(answer.value().variant());
    });
}

void DesktopPortal::hear(const QDBusMessage& changed) {
    const QVariantList what = changed.arguments();
    if (what.size() == 3 && what[0] == QLatin1String(appearance) &&
        what[1] == QLatin1String(colourScheme))
        take(what[2]);
}

void DesktopPortal::take(const QVariant& scheme) {
    const bool wished = unwrapped(scheme).toUInt() == preferDark;
    if (wished == dark || (wished && look::colours() != look::day))
        return;
    dark = wished;
    QApplication::setPalette(dark ? look::paletteOf(look::night) : QPalette());
}

} // namespace tarnel
