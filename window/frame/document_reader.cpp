#include "window/frame/document_reader.h"

#include <QDesktopServices>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>

namespace tarnel {

namespace {

/// Readers that take a page, and the words they want before the file.
struct PageReader {
    const char* program;
    const char* pageOption; ///< %1 is the page
};

constexpr PageReader pageReaders[] = {
    {"okular", "--page=%1"},      {"evince", "--page-index=%1"},  {"papers", "--page-index=%1"},
    {"atril", "--page-index=%1"}, {"xreader", "--page-index=%1"}, {"zathura", "--page=%1"},
};

bool openAtPage(const QString& path, int page) {
    for (const PageReader& reader : pageReaders) {
        const QString program = QStandardPaths::findExecutable(QLatin1String(reader.program));
        const QString option = QString::fromLatin1(reader.pageOption).arg(page);
        if (!program.isEmpty() && QProcess::startDetached(program, {option, path}))
            return true;
    }
    return false;
}

} // namespace

bool openInReader(const QString& path, int page) {
    return (page > 0 && openAtPage(path, page)) ||
           QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

} // namespace tarnel
