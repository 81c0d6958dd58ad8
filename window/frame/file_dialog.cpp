#include "window/frame/file_dialog.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QStandardPaths>

namespace tarnel {

namespace {

bool liesBelow(const QFileInfo& folder, const QFileInfo& other) {
    const QString path = folder.canonicalFilePath() + QLatin1Char('/');
    return path.startsWith(other.canonicalFilePath() + QLatin1Char('/'));
}

/// Whether a dialog may start there: a save must be able to end there, too, and not among the
/// program's own files.
bool serves(const QFileInfo& folder, const FileQuestion& question) {
    const QFileInfo shipped(QString::fromStdString(question.folder));
    return folder.isDir() &&
           (!question.saves || (folder.isWritable() && !liesBelow(folder, shipped)));
}

QString documents() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QFileInfo(folder).isDir() ? folder : QDir::homePath();
}

} // namespace

QString FileDialog::folderFor(const FileQuestion& question) const {
    const QFileInfo present(QString::fromStdString(question.present));
    const bool inFolder = present.fileName() != present.filePath();
    if (inFolder && serves(QFileInfo(present.path()), question))
        return present.path();
    if (!lastFolder.isEmpty() && serves(QFileInfo(lastFolder), question))
        return lastFolder;
    return question.saves ? documents() : QString::fromStdString(question.folder);
}

std::optional<std::string> FileDialog::ask(const FileQuestion& question, QWidget* parent) {
    QFileDialog dialog(parent, QString::fromStdString(question.title), folderFor(question),
                       QString::fromStdString(question.filter));
    dialog.setDefaultSuffix(QString::fromStdString(question.extension));
    dialog.setAcceptMode(question.saves ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(question.saves ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    const QFileInfo present(QString::fromStdString(question.present));
    if (question.saves || present.isFile())
        dialog.selectFile(present.fileName());
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return {};
    const QFileInfo chosen(dialog.selectedFiles().constFirst());
    lastFolder = chosen.absolutePath();
    return chosen.absoluteFilePath().toStdString();
}

} // namespace tarnel
