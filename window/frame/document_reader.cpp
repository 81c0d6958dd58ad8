#include "window/frame/document_reader.h"

#include "platform/user.h"
#include "readers/pdf_reader.h"
#include "window/widgets/desktop_opener.h"

#include <QFileInfo>
#include <QProcess>

namespace tarnel {

namespace {

bool start(const ProgramCall& call) {
    QStringList words;
    for (const std::string& word : call.words)
        words.append(QString::fromStdString(word));
    return QProcess::startDetached(QString::fromStdString(call.program), words);
}

} // namespace

bool openInReader(const QString& path, int page, const std::function<void()>& notOpened) {
    const QString whole = QFileInfo(path).absoluteFilePath();
    const std::optional<PdfReader> reader = FindPDFReader(DesktopFolders(environment));
    return (reader && start(reader->opening(whole.toStdString(), page))) ||
           openByDesktop(whole, notOpened);
}

} // namespace tarnel
