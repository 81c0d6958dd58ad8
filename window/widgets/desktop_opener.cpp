#include "window/widgets/desktop_opener.h"

#include <QDesktopServices>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>

namespace tarnel {

namespace {

/// Without a desktop around it `xdg-open` is the viewer's parent as long as that is open, so it is
/// left alone: it outlives the trainer if need be.
void watchOpener(const QString& program, const QString& path,
                 const std::function<void()>& notOpened) {
    auto* opener = new QProcess;
    QObject::connect(opener, &QProcess::finished, opener,
                     [opener, notOpened](int code, QProcess::ExitStatus) {
                         opener->deleteLater();
                         if (code != 0)
                             notOpened();
                     });
    opener->setStandardOutputFile(QProcess::nullDevice());
    opener->setStandardErrorFile(QProcess::nullDevice());
    opener->start(program, {path});
}

} // namespace

bool openByDesktop(const QString& path, const std::function<void()>& notOpened) {
    const QString opener = QStandardPaths::findExecutable(QStringLiteral("xdg-open"));
    if (opener.isEmpty())
        return QDesktopServices::openUrl(QUrl::fromLocalFile(path));
    watchOpener(opener, path, notOpened);
    return true;
}

} // namespace tarnel
