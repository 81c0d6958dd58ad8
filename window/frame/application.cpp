#include "window/frame/application.h"

#include "log/sqlite_log.h"
#include "persistence/scratch_folder.h"
#include "persistence/user_data.h"
#include "platform/process.h"
#include "shell/application_folder.h"
#include "window/frame/command_line.h"
#include "window/frame/desktop_portal.h"
#include "window/frame/flight_guard.h"
#include "window/frame/main_window.h"
#include "window/frame/qt_outside_world.h"
#include "window/frame/single_instance.h"
#include "window/frame/window_place.h"
#include "window/widgets/dressing.h"
#include "window/widgets/text_of.h"

#include <QApplication>
#include <QDBusConnection>
#include <QMessageBox>
#include <QScreen>
#include <QTextStream>
#include <QTimer>

#include <iostream>
#include <optional>

namespace tarnel {

namespace {

/// The share of a large screen that the window takes at first; on a small one it takes all.
constexpr double shareOfScreen = 0.86;
constexpr QSize smallScreen{1366, 860};
constexpr const char* windowPlace = "place";
constexpr int otherHangs = 1;
constexpr const char* tokenVariable = "XDG_ACTIVATION_TOKEN";

void openOnScreen(MainWindow& window) {
    const QSize available = window.screen()->availableSize();
    if (available.width() <= smallScreen.width() || available.height() <= smallScreen.height()) {
        window.showMaximized();
        return;
    }
    window.resize(available * shareOfScreen);
    window.show();
}

/// Both languages share settings and flights.
void nameApplication() {
    QApplication::setApplicationName(QStringLiteral("tarnel"));
    QApplication::setDesktopFileName(QStringLiteral("org.tarnel.tarnel"));
}

/// The desktop's word that a window of ours may come to the front. Whoever uses it forgets it.
std::string activationToken() {
    return qgetenv(tokenVariable).toStdString();
}

/// From here on the word that a later start was given is this program's.
void takeActivationToken(const std::string& token) {
    if (!token.empty())
        qputenv(tokenVariable, QByteArray::fromStdString(token));
}

/// Ends a second start. The exit status.
int leaveToOther(const StringTable& texts, SingleInstance::Start start) {
    const bool hangs = start == SingleInstance::Start::otherHangs;
    const QString told = textOf(texts, hangs ? Text::otherHangs : Text::alreadyRunning);
    QTextStream(stderr) << told << '\n';
    if (hangs)
        QMessageBox::warning(nullptr, textOf(texts, Text::windowTitle), told);
    return hangs ? otherHangs : 0;
}

void showAgain(MainWindow& window) {
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.show();
    window.raise();
    window.activateWindow();
}

} // namespace

int runApplication(int argc, char** argv, const StringTable& texts) {
    makeFileSizeLimitAnError();
    const CommandLine asked = readCommandLine(argc, argv, texts);
    if (asked.ended) {
        (*asked.ended == 0 ? std::cout : std::cerr) << asked.answer << std::flush;
        return *asked.ended;
    }
    const std::string token = activationToken();
    QApplication application(argc, argv);
    nameApplication();
    const std::string folder = applicationFolder();
    dressApplication(texts, QString::fromStdString(folder));
    translateDialogs(texts);
    std::optional<DesktopPortal> portal;
    if (!qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS"))
        portal.emplace(QDBusConnection::sessionBus());
    SingleInstance instance;
    const auto start = asked.newInstance ? SingleInstance::Start::first
                                         : instance.start(token + '\n' + asked.file);
    if (start != SingleInstance::Start::first)
        return leaveToOther(texts, start);
    QtOutsideWorld outside(texts);
    Form1 form(texts, outside, folder);
    form.courses.setFolder(userCourses());
    form.training.useLog([](TrainingDesk& desk) {
        auto log = std::make_unique<SqliteLog>(userDataFolder() + "/training");
        log->onSetAside = [&desk](const std::string& path) { desk.tellSetAside(path); };
        return log;
    });
    const ScratchFolder scratch(userDataFolder());
    if (!scratch.path().empty())
        form.UserControl11.c_ScratchPath = scratch.path();
    MainWindow window(form);
    outside.setParent(&window);
    const auto openIn = [&window](const std::string& path) {
        if (!path.empty())
            window.openFile(path);
    };
    instance.onOther = [&](const std::string& message) {
        const std::size_t line = message.find('\n');
        takeActivationToken(message.substr(0, line));
        showAgain(window);
        openIn(message.substr(line + 1));
    };
    window.onClose = [&] { keepPlace(window, outside.settings(), windowPlace); };
    if (takePlace(window, outside.settings(), windowPlace))
        window.show();
    else
        openOnScreen(window);
    window.startTimers();
    std::optional<FlightGuard> guard;
    QTimer::singleShot(0, &window, [&] {
        guard.emplace(form.flightDesk.keeper,
                      QString::fromStdString(userDataFolder() + "/flights"));
        openIn(asked.file);
    });
    return QApplication::exec();
}

} // namespace tarnel
