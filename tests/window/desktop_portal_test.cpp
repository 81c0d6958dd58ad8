#include "look/look.h"
#include "window/frame/desktop_portal.h"
#include "window/student_fixture.h"

#include <QApplication>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QProcess>

namespace tarnel {
namespace {

/// A portal that asks for dark, twice wrapped, as that of GNOME does.
class Portal : public QDBusVirtualObject {
  public:
    [[nodiscard]] QString introspect(const QString& /*path*/) const override { return {}; }
    bool handleMessage(const QDBusMessage& asked, const QDBusConnection& bus) override {
        const bool known =
            asked.member() == "Read" &&
            asked.arguments() == QVariantList{"org.freedesktop.appearance", "color-scheme"};
        const QDBusVariant scheme(known ? 1U : 0U);
        return bus.send(
            asked.createReply(QVariant::fromValue(QDBusVariant(QVariant::fromValue(scheme)))));
    }
};

/// Tells it on the bus as the desktop does when the user chooses.
void choose(QDBusConnection& desktop, const char* space, uint scheme) {
    QDBusMessage told = QDBusMessage::createSignal(
        "/org/freedesktop/portal/desktop", "org.freedesktop.portal.Settings", "SettingChanged");
    told << QString::fromLatin1(space) << QStringLiteral("color-scheme")
         << QVariant::fromValue(QDBusVariant(scheme));
    desktop.send(told);
}

TEST_F(Student, SeesTheWindowFollowTheWishForDarkOnTheBus) {
    QProcess daemon;
    daemon.start("dbus-daemon", {"--session", "--nofork", "--print-address"});
    if (!daemon.waitForStarted())
        GTEST_SKIP() << "no dbus-daemon";
    ASSERT_TRUE(daemon.waitForReadyRead());
    const QString address = QString::fromUtf8(daemon.readLine()).trimmed();
    open();
    const auto becomes = [](const look::Colours& colours) {
        return QTest::qWaitFor([&] { return look::colours() == colours; });
    };
    {
        auto desktop = QDBusConnection::connectToBus(address, "desktop");
        const DesktopPortal without(QDBusConnection::connectToBus(address, "early"));
        Portal portal;
        ASSERT_TRUE(desktop.registerVirtualObject("/org/freedesktop/portal/desktop", &portal));
        ASSERT_TRUE(desktop.registerService("org.freedesktop.portal.Desktop"));
        EXPECT_EQ(look::colours(), look::day) << "nobody has asked for dark";
        const DesktopPortal followed(QDBusConnection::connectToBus(address, "tarnel"));
        EXPECT_TRUE(becomes(look::night)) << "asked at the start";
        choose(desktop, "org.freedesktop.appearance", 2);
        EXPECT_TRUE(becomes(look::day));
        choose(desktop, "org.gnome.desktop.interface", 1);
        EXPECT_FALSE(QTest::qWaitFor([] { return look::colours() != look::day; }, 100));
        choose(desktop, "org.freedesktop.appearance", 1);
        EXPECT_TRUE(becomes(look::night));
        choose(desktop, "org.freedesktop.appearance", 0);
        EXPECT_TRUE(becomes(look::day));
        QApplication::setPalette(look::paletteOf(look::night));
        ASSERT_TRUE(becomes(look::night));
        choose(desktop, "org.freedesktop.appearance", 1);
        choose(desktop, "org.freedesktop.appearance", 0);
        EXPECT_FALSE(QTest::qWaitFor([] { return look::colours() == look::day; }, 100))
            << "a palette of the desktop goes before its wish";
        QApplication::setPalette(QPalette());
        EXPECT_TRUE(becomes(look::day));
    }
    for (const char* name : {"desktop", "early", "tarnel"})
        QDBusConnection::disconnectFromBus(name);
    daemon.kill();
    daemon.waitForFinished();
}

} // namespace
} // namespace tarnel
