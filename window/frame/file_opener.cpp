#include "window/frame/file_opener.h"

#include "shell/box_desk.h"
#include "shell/file_desk.h"

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QTimer>
#include <QUrl>
#include <QWidget>

namespace tarnel {

namespace {

constexpr int waitMilliseconds = 200;

/// The first file of this computer among what is dragged; empty if there is none. Its bytes are
/// taken as they are: a name need not be UTF-8.
std::string droppedFile(const QDropEvent& event) {
    for (const QUrl& url : event.mimeData()->urls())
        if (url.isLocalFile() && url.host().isEmpty())
            return QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1())
                .toStdString();
    return {};
}

} // namespace

FileOpener::FileOpener(FileDesk& fileDesk, BoxDesk& boxDesk, QWidget& window)
    : QObject(&window), files(fileDesk), boxes(boxDesk) {
    window.setAcceptDrops(true);
    window.installEventFilter(this);
}

void FileOpener::open(const std::string& path) {
    if (QApplication::activeModalWidget()) {
        QTimer::singleShot(waitMilliseconds, this, [this, path] { open(path); });
        return;
    }
    boxes.guarded([&] { files.openFile(path); });
}

/// The file manager waits for the end of a drop, so what may show a box comes after it.
bool FileOpener::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::DragEnter || event->type() == QEvent::Drop) {
        auto* drop = static_cast<QDropEvent*>(event);
        const std::string path = droppedFile(*drop);
        if (path.empty())
            return false;
        drop->setDropAction(Qt::CopyAction);
        drop->accept();
        if (event->type() == QEvent::Drop)
            QTimer::singleShot(0, this, [this, path] { open(path); });
        return true;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace tarnel
