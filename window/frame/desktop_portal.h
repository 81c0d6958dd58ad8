#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QVariant>

namespace tarnel {

/// `DesktopPortal`: follows the wish for dark windows of desktops that give Qt no palette of their
/// own, as GNOME, and tell it on the session's bus: the setting "color-scheme" of the freedesktop
/// portal, where 1 asks for dark, all else for nothing. A desktop without portal or bus changes
/// nothing, nor does the wish where the palette is dark or of high contrast already.
class DesktopPortal : public QObject {
    Q_OBJECT

  public:
    /// Asks on `bus`, and does not wait for the answer.
    explicit DesktopPortal(QDBusConnection bus);

  private slots:
    void hear(const QDBusMessage& changed);

  private:
    void ask();
    void take(const QVariant& scheme);

    QDBusConnection bus;
    bool dark = false; ///< by this wish
};

} // namespace tarnel
