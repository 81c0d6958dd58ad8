#include "window/frame/qt_outside_world.h"

#include "window/frame/document_reader.h"
#include "window/frame/window_place.h"
#include "window/help/help_window.h"
#include "window/widgets/desktop_opener.h"

#include <QApplication>
#include <QDateTime>
#include <QMessageBox>

#include <chrono>

namespace tarnel {

namespace {

constexpr const char* helpPlace = "help";
constexpr const char* helpZoom = "help zoom";

} // namespace

QtOutsideWorld::QtOutsideWorld(const StringTable& table, std::string settingsFile)
    : texts(table), kept(std::move(settingsFile)) {}

QtOutsideWorld::~QtOutsideWorld() {
    if (help && help->isVisible())
        keepHelp();
}

/// The dialog that is open, else the window.
QWidget* QtOutsideWorld::front() const {
    QWidget* dialog = QApplication::activeModalWidget();
    return dialog ? dialog : parent.data();
}

void QtOutsideWorld::messageBox(BoxKind kind, const std::string& title, const std::string& text) {
    const auto icon = kind == BoxKind::warning ? QMessageBox::Warning : QMessageBox::Information;
    QMessageBox box(icon, QString::fromStdString(title), QString::fromStdString(text),
                    QMessageBox::Ok, front());
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

/// What is asked for can't be taken back, so Enter alone does not do it.
bool QtOutsideWorld::ask(const std::string& title, const std::string& text) {
    QMessageBox box(QMessageBox::Question, QString::fromStdString(title),
                    QString::fromStdString(text), QMessageBox::Yes | QMessageBox::No, front());
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}

std::optional<std::string> QtOutsideWorld::chooseFile(const FileQuestion& question) {
    return files.ask(question, front());
}

bool QtOutsideWorld::openDocument(const std::string& path, int page,
                                  const std::function<void()>& notOpened) {
    return openInReader(QString::fromStdString(path), page, notOpened);
}

bool QtOutsideWorld::openInBrowser(const std::string& path,
                                   const std::function<void()>& notOpened) {
    return openByDesktop(QString::fromStdString(path), notOpened);
}

void QtOutsideWorld::showHelp(const std::string& path) {
    if (!help) {
        help = std::make_unique<HelpWindow>(texts);
        help->onClose = [this] { keepHelp(); };
        takePlace(*help, kept, helpPlace);
        help->setZoom(
            QString::fromStdString(kept.value("tarnel", "window", helpZoom, "1")).toDouble());
    }
    help->open(QString::fromStdString(path));
}

void QtOutsideWorld::keepHelp() {
    kept.setValue("tarnel", "window", helpZoom, QString::number(help->zoom()).toStdString());
    keepPlace(*help, kept, helpPlace);
}

std::int64_t QtOutsideWorld::secondsNow() {
    return QDateTime::currentSecsSinceEpoch();
}

std::int64_t QtOutsideWorld::millisecondsNow() {
    return QDateTime::currentMSecsSinceEpoch();
}

std::string QtOutsideWorld::localTime(std::int64_t seconds, const std::string& format) {
    return QDateTime::fromSecsSinceEpoch(seconds)
        .toString(QString::fromStdString(format))
        .toStdString();
}

std::optional<std::uint32_t> QtOutsideWorld::clockSeed() {
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    return static_cast<std::uint32_t>(
        std::chrono::duration_cast<std::chrono::milliseconds>(now).count());
}

} // namespace tarnel
