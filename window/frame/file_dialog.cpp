#include "window/frame/file_dialog.h"

#include "window/widgets/help_page.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStandardPaths>

namespace tarnel {

namespace {

constexpr const char* application = "tarnel";
constexpr const char* section = "files";
constexpr const char* folderKey = "folder";

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

/// The ending that a filter, "name (*.ending)", stands for.
QString endingOf(const QString& filter) {
    return filter.section(QStringLiteral("*."), 1, 1).section(QRegularExpression("[ )]"), 0, 0);
}

/// The name has the ending of the filter that is chosen.
void followFilter(QFileDialog& dialog) {
    QObject::connect(
        &dialog, &QFileDialog::filterSelected, &dialog, [&dialog](const QString& filter) {
            dialog.setDefaultSuffix(endingOf(filter));
            const QStringList files = dialog.selectedFiles();
            if (files.size() != 1)
                return;
            const QFileInfo file(files.constFirst());
            if (!file.suffix().isEmpty())
                dialog.selectFile(file.completeBaseName() + QLatin1Char('.') + endingOf(filter));
        });
}

} // namespace

QString FileDialog::lastFolder() const {
    return QString::fromStdString(settings.value(application, section, folderKey, {}));
}

QString FileDialog::folderFor(const FileQuestion& question) const {
    const QFileInfo present(QString::fromStdString(question.present));
    const bool inFolder = present.fileName() != present.filePath();
    if (inFolder && serves(QFileInfo(present.path()), question))
        return present.path();
    QString last = lastFolder();
    if (!last.isEmpty() && serves(QFileInfo(last), question))
        return last;
    return question.saves ? documents() : QString::fromStdString(question.folder);
}

std::optional<std::string> FileDialog::ask(const FileQuestion& question, QWidget* parent) {
    QFileDialog dialog(parent, QString::fromStdString(question.title), folderFor(question),
                       QString::fromStdString(question.filter));
    setHelpPage(dialog, "files");
    dialog.setDefaultSuffix(QString::fromStdString(question.extension));
    dialog.setAcceptMode(question.saves ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(question.saves ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    if (question.saves)
        followFilter(dialog);
    const QFileInfo present(QString::fromStdString(question.present));
    if (question.saves || present.isFile())
        dialog.selectFile(present.fileName());
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return {};
    const QFileInfo chosen(dialog.selectedFiles().constFirst());
    settings.setValue(application, section, folderKey, chosen.absolutePath().toStdString());
    settings.flush();
    return chosen.absoluteFilePath().toStdString();
}

} // namespace tarnel
