#include "window/frame/qt_outside_world.h"

#include "window/frame/document_reader.h"

#include <QApplication>
#include <QDateTime>
#include <QMessageBox>

#include <chrono>

namespace tarnel {

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

bool QtOutsideWorld::openDocument(const std::string& path, int page) {
    return openInReader(QString::fromStdString(path), page);
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
