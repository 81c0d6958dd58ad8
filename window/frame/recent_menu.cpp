#include "window/frame/recent_menu.h"

#include "shell/file_desk.h"
#include "shell/recent_files.h"
#include "window/widgets/text_of.h"

#include <QDir>
#include <QFileInfo>
#include <QMenu>

namespace tarnel {

namespace {

/// Pixels.
constexpr int widestPath = 480;

/// "2  holding.ts - ~/Flights": the name, and where it lies.
QString captionOf(const std::string& path, int number, const QMenu& menu) {
    const QFileInfo file(QString::fromStdString(path));
    QString folder = file.path();
    if (folder == QDir::homePath() || folder.startsWith(QDir::homePath() + QLatin1Char('/')))
        folder.replace(0, QDir::homePath().size(), QLatin1Char('~'));
    QString text = menu.fontMetrics().elidedText(file.fileName() + QStringLiteral(" - ") + folder,
                                                 Qt::ElideMiddle, widestPath);
    return QStringLiteral("&%1  ").arg(number) +
           text.replace(QLatin1Char('&'), QLatin1String("&&"));
}

void addFiles(QMenu& menu, RecentFiles& recent, FileDesk& files, BoxDesk& boxes) {
    menu.clear();
    int number = 0;
    for (const std::string& path : recent.paths()) {
        QAction* item = menu.addAction(captionOf(path, ++number, menu));
        item->setToolTip(QString::fromStdString(path));
        QObject::connect(item, &QAction::triggered, &menu,
                         [path, &files, &boxes] { boxes.guarded([&] { files.openFile(path); }); });
    }
    if (menu.isEmpty()) {
        menu.addAction(textOf(boxes.texts, Text::noRecentFiles))->setEnabled(false);
        return;
    }
    menu.addSeparator();
    QObject::connect(menu.addAction(textOf(boxes.texts, Text::forgetRecentFiles)),
                     &QAction::triggered, &menu, [&recent] { recent.clear(); });
}

} // namespace

void fillWithRecentFiles(QMenu& menu, RecentFiles& recent, FileDesk& files, BoxDesk& boxes) {
    menu.setToolTipsVisible(true);
    QObject::connect(&menu, &QMenu::aboutToShow, &menu,
                     [&] { addFiles(menu, recent, files, boxes); });
}

} // namespace tarnel
