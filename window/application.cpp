#include "window/application.h"

#include "shell/application_folder.h"
#include "window/form_binding.h"
#include "window/look.h"
#include "window/main_window.h"
#include "window/panel_accessibility.h"
#include "window/qt_outside_world.h"
#include "window/single_instance.h"

#include <QApplication>
#include <QIcon>
#include <QScreen>
#include <QStyleFactory>
#include <QTextStream>

namespace tarnel {

namespace {

/// The share of a large screen that the window takes at first; on a small one it takes all.
constexpr double shareOfScreen = 0.86;
constexpr QSize smallScreen{1366, 860};

void openOnScreen(MainWindow& window) {
    const QSize available = window.screen()->availableSize();
    if (available.width() <= smallScreen.width() || available.height() <= smallScreen.height()) {
        window.showMaximized();
        return;
    }
    window.resize(available * shareOfScreen);
    window.show();
}

void showAgain(MainWindow& window) {
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.show();
    window.raise();
    window.activateWindow();
}

} // namespace

void dressApplication(const StringTable& texts, const QString& applicationFolder) {
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setFont(look::font(look::bodyType));
    QPalette palette = QApplication::palette();
    palette.setColor(QPalette::Highlight, look::accent);
    palette.setColor(QPalette::Window, look::desktop);
    palette.setColor(QPalette::WindowText, look::ink);
    QApplication::setPalette(palette);
    QApplication::setApplicationDisplayName(textOf(texts, Text::windowTitle));
    QApplication::setWindowIcon(QIcon(applicationFolder + QStringLiteral("/tarnel.png")));
}

int runApplication(int argc, char** argv, const StringTable& texts) {
    QApplication application(argc, argv);
    SingleInstance instance;
    if (instance.otherRuns()) {
        QTextStream(stderr) << textOf(texts, Text::alreadyRunning) << '\n';
        return 0;
    }
    const std::string folder = applicationFolder();
    dressApplication(texts, QString::fromStdString(folder));
    installPanelAccessibility();
    QtOutsideWorld outside;
    Form1 form(texts, outside, folder);
    MainWindow window(form);
    outside.setParent(&window);
    instance.onOther = [&window] { showAgain(window); };
    openOnScreen(window);
    window.startTimers();
    return QApplication::exec();
}

} // namespace tarnel
